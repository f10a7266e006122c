include(${CMAKE_CURRENT_LIST_DIR}/header_package.cmake)
gk_header_package(nlohmann_json::nlohmann_json /usr/include/nlohmann)
