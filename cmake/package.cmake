# Packages, made by cpack: an archive of all that is installed or, with GKCNTR_DEBIAN, Debian packages: the shared library,
# its headers and CMake package, each optional library, and the reference.
include(GNUInstallDirs)

option(GKCNTR_DEBIAN "Package for Debian" OFF)
set(GKCNTR_REFERENCE "" CACHE PATH "The folder with the reference as web pages, to be installed")
set(GKCNTR_MAINTAINER "The gkcntr authors <maintainers@gkcntr.example>" CACHE STRING "Whom packages name")

set(CPACK_PACKAGE_VENDOR "The gkcntr authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_CONTACT ${GKCNTR_MAINTAINER})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
string(TOLOWER ${CMAKE_SYSTEM_NAME} gk_system)
set(CPACK_PACKAGE_FILE_NAME gkcntr-${PROJECT_VERSION}-${gk_system}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_GENERATOR TGZ)
if(WIN32)
  set(CPACK_GENERATOR ZIP)
endif()

if(GKCNTR_REFERENCE)
  install(DIRECTORY ${GKCNTR_REFERENCE}/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/html COMPONENT gkcntr_doc)
endif()

# gk_debian_package(COMPONENT NAME SECTION DEPENDS SUMMARY): what COMPONENT holds becomes the package NAME. DEPENDS comes
# besides the libraries that its binaries need.
function(gk_debian_package component name section depends summary)
  string(TOUPPER CPACK_DEBIAN_${component}_PACKAGE variable)
  set(${variable}_NAME ${name} PARENT_SCOPE)
  set(${variable}_SECTION ${section} PARENT_SCOPE)
  set(${variable}_DEPENDS "${depends}" PARENT_SCOPE)
  string(TOUPPER CPACK_COMPONENT_${component}_DESCRIPTION variable)
  set(${variable} "contour and region geometry for machine vision - ${summary}" PARENT_SCOPE)
  set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)

  install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/copyright DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    COMPONENT ${component})
  install(FILES ${PROJECT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name}
    COMPONENT ${component})
  if(EXISTS ${PROJECT_SOURCE_DIR}/packaging/debian/${component}.lintian-overrides)
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/debian/${component}.lintian-overrides RENAME ${name}
      DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
  endif()
endfunction()

if(GKCNTR_DEBIAN)
  set(CPACK_GENERATOR DEB)
  set(CPACK_DEB_COMPONENT_INSTALL ON)
  set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
  set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
  set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
  set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
  set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  set(CPACK_STRIP_FILES ON)
  set(CPACK_DEBIAN_GKCNTR_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)

  string(TIMESTAMP gk_debian_date "%a, %d %b %Y %H:%M:%S +0000" UTC) # of the build, or SOURCE_DATE_EPOCH
  configure_file(packaging/debian/changelog.in changelog @ONLY)
  execute_process(COMMAND gzip --best --no-name --keep --force ${PROJECT_BINARY_DIR}/changelog COMMAND_ERROR_IS_FATAL ANY)

  set(gk_library libgkcntr${PROJECT_VERSION_MAJOR})
  gk_debian_package(gkcntr_runtime ${gk_library} libs "" "shared library
Contours, regions with holes and sets of regions: length, area, moments,
diameter, hull, containment, distances and crossings, and the repair of
outlines that cross themselves. Every system gives the same bits.
.
This package holds the shared library.")
  gk_debian_package(gkcntr_dev libgkcntr-dev libdevel "${gk_library} (= ${PROJECT_VERSION})" "development files
Contours, regions with holes and sets of regions for C++17 programs.
.
This package holds the headers and what CMake and pkg-config need to find
them.")
  if(TARGET gkcntr_cairo)
    gk_debian_package(gkcntr_cairo libgkcntr-cairo-dev libdevel
      "libgkcntr-dev (= ${PROJECT_VERSION}), libcairo2-dev" "Cairo surface
Contours, regions with holes and sets of regions for C++17 programs.
.
This package holds the static library of the surface that saves drawings of
them as PNG, SVG and PDF, the component cairo of the CMake package.")
  endif()
  if(TARGET gkcntr_interop)
    gk_debian_package(gkcntr_interop libgkcntr-interop-dev libdevel "libgkcntr-dev (= ${PROJECT_VERSION})" "text formats
Contours, regions with holes and sets of regions for C++17 programs.
.
This package holds the static library that reads and writes them as text, the
component interop of the CMake package.")
  endif()
  if(GKCNTR_REFERENCE)
    gk_debian_package(gkcntr_doc libgkcntr-doc doc "" "reference
Contours, regions with holes and sets of regions for C++17 programs.
.
This package holds the reference as web pages.")
    set(CPACK_DEBIAN_GKCNTR_DOC_PACKAGE_ARCHITECTURE all)
  endif()
endif()

include(CPack)
