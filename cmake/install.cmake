# What is installed: the library, the public headers, and what CMake and pkg-config need to find them. An optional library
# comes as a component of the CMake package, named after its target: find_package(gkcntr COMPONENTS cairo) for
# gkcntr_cairo. No file says where it lies, so the installed tree may be moved.
#
# The headers have a folder of their own: names like platform/ and cntr/ are not ours alone.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(gk_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/gkcntr)
set(gk_pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

add_custom_target(gkcntr_libraries COMMENT "Everything that is installed")

# gk_install_library(TARGET RUNTIME DEVELOPMENT PC): TARGET with the headers of its file set, what programs need when they
# run in the component RUNTIME, the rest in DEVELOPMENT; described for CMake here and for the build folder, and for
# pkg-config by PC.
function(gk_install_library target runtime development pc)
  add_dependencies(gkcntr_libraries ${target})
  install(TARGETS ${target} EXPORT ${target}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT ${runtime}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${runtime} NAMELINK_COMPONENT ${development}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT ${development}
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gkcntr COMPONENT ${development}
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gkcntr) # for a CMake that knows no file sets
  install(EXPORT ${target} NAMESPACE gkcntr:: FILE ${target}Targets.cmake
    DESTINATION ${gk_package_folder} COMPONENT ${development})
  export(EXPORT ${target} NAMESPACE gkcntr:: FILE ${PROJECT_BINARY_DIR}/${target}Targets.cmake)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/install/${pc} ${PROJECT_BINARY_DIR}/${target}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${target}.pc DESTINATION ${gk_pc_folder} COMPONENT ${development})
endfunction()

# What the .pc files say.
file(RELATIVE_PATH gk_pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" gk_pc_prefix ${gk_pc_prefix})
file(RELATIVE_PATH gk_pc_include ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_FULL_INCLUDEDIR}/gkcntr)
list(JOIN gk_cairo_modules ", " gk_pc_cairo)
string(REPLACE ">=" " >= " gk_pc_cairo "${gk_pc_cairo}")
set(gk_pc_define)
if(NOT BUILD_SHARED_LIBS)
  set(gk_pc_define " -DGKCNTR_STATIC")
endif()

gk_install_library(gkcntr gkcntr_runtime gkcntr_dev gkcntr.pc.in)
if(TARGET gkcntr_cairo)
  set(gk_pc_requires ", ${gk_pc_cairo}")
  gk_install_library(gkcntr_cairo gkcntr_cairo gkcntr_cairo component.pc.in)
endif()
if(TARGET gkcntr_interop)
  set(gk_pc_requires)
  gk_install_library(gkcntr_interop gkcntr_interop gkcntr_interop component.pc.in)
endif()

list(JOIN gk_cairo_modules " " gk_cairo_modules)
configure_package_config_file(cmake/install/gkcntrConfig.cmake.in ${PROJECT_BINARY_DIR}/gkcntrConfig.cmake
  INSTALL_DESTINATION ${gk_package_folder} NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/gkcntrConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/gkcntrConfig.cmake ${PROJECT_BINARY_DIR}/gkcntrConfigVersion.cmake
  DESTINATION ${gk_package_folder} COMPONENT gkcntr_dev)
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DATADIR}/licenses/gkcntr COMPONENT gkcntr_licence)
