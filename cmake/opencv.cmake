# gk_opencv: the three modules of OpenCV that examples and tests use. Debian ships OpenCV's own CMake package only with
# all modules and what they in turn need, so headers and libraries are looked up one by one.
include_guard(GLOBAL)
add_library(gk_opencv INTERFACE)
find_path(OPENCV_INCLUDE_DIR opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
target_include_directories(gk_opencv SYSTEM INTERFACE ${OPENCV_INCLUDE_DIR})
foreach(module core imgproc imgcodecs)
  find_library(OPENCV_${module}_LIBRARY opencv_${module} REQUIRED)
  target_link_libraries(gk_opencv INTERFACE ${OPENCV_${module}_LIBRARY})
endforeach()
