# Builds for 64-bit Windows on Debian, with MinGW-w64 and POSIX threads; what is built runs under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix) # GoogleTest asks for it
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Debian has these for its own programs only. Headers alone serve every system, and GoogleTest comes as source.
set(CMAKE_FIND_PACKAGE_PREFER_CONFIG ON)
foreach(package Boost Eigen3 GTest nlohmann_json)
  set(${package}_DIR ${CMAKE_CURRENT_LIST_DIR}/packages CACHE PATH "Where ${package} is described for Windows")
endforeach()

set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/run.sh)
