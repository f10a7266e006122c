# usage: cmake -D ROOM=FOLDER -P vcpkg.cmake
# Runs the port's portfile.cmake with stand-ins for the functions of vcpkg that it calls. They do what vcpkg's do for one
# release build without features, and refuse a path that is not there.
set(CURRENT_PACKAGES_DIR ${ROOM}/vcpkg_made)
file(REMOVE_RECURSE ${CURRENT_PACKAGES_DIR})

function(run)
  execute_process(COMMAND ${ARGV} OUTPUT_FILE ${ROOM}/log ERROR_FILE ${ROOM}/log COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(must_exist path)
  if(NOT EXISTS ${path})
    message(FATAL_ERROR "${path} does not exist")
  endif()
endfunction()

function(vcpkg_check_features)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "OUT_FEATURE_OPTIONS" "FEATURES")
  list(FILTER arg_FEATURES INCLUDE REGEX "^GKCNTR_")
  list(TRANSFORM arg_FEATURES REPLACE "(.+)" "-D\\1=OFF")
  set(${arg_OUT_FEATURE_OPTIONS} ${arg_FEATURES} PARENT_SCOPE)
endfunction()

function(vcpkg_cmake_configure)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "SOURCE_PATH" "OPTIONS")
  run(${CMAKE_COMMAND} -G Ninja -S ${arg_SOURCE_PATH} -B ${ROOM}/vcpkg_build -DCMAKE_INSTALL_PREFIX=${CURRENT_PACKAGES_DIR}
    -DBUILD_SHARED_LIBS=OFF -DCMAKE_CXX_FLAGS_RELEASE=-O0 ${arg_OPTIONS})
endfunction()

function(vcpkg_cmake_install)
  run(${CMAKE_COMMAND} --build ${ROOM}/vcpkg_build --target install)
endfunction()

function(vcpkg_cmake_config_fixup)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "CONFIG_PATH" "")
  must_exist(${CURRENT_PACKAGES_DIR}/${arg_CONFIG_PATH}/gkcntrConfig.cmake)
endfunction()

function(vcpkg_fixup_pkgconfig)
  must_exist(${CURRENT_PACKAGES_DIR}/lib/pkgconfig/gkcntr.pc)
endfunction()

function(vcpkg_install_copyright)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "FILE_LIST")
  must_exist(${arg_FILE_LIST})
endfunction()

include(${CMAKE_CURRENT_LIST_DIR}/../../packaging/vcpkg/gkcntr/portfile.cmake)
must_exist(${CURRENT_PACKAGES_DIR}/include/gkcntr/gkcntr.h)
must_exist(${CURRENT_PACKAGES_DIR}/lib/libgkcntr.a)
