include(${CMAKE_CURRENT_LIST_DIR}/header_package.cmake)
gk_header_package(Boost::headers /usr/include/boost)
