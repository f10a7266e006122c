include(${CMAKE_CURRENT_LIST_DIR}/header_package.cmake)
gk_header_package(Eigen3::Eigen /usr/include/eigen3/Eigen)
