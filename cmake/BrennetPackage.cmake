# What `cmake --install` lays out: the package to build hosts with. The native package is the
# library, its headers and the CMake files; the Windows package has what sdk/README.md lists.

include(CMakePackageConfigHelpers)

# The public headers, which are included as <brennet/IBrennet.h> everywhere.
install(DIRECTORY host/include/ model/include/ DESTINATION include)

add_library(brennet_headers INTERFACE)
add_library(Brennet::Headers ALIAS brennet_headers)
target_include_directories(brennet_headers INTERFACE
  "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host/include;${PROJECT_SOURCE_DIR}/model/include>"
  "$<INSTALL_INTERFACE:include>")
set_target_properties(brennet_headers PROPERTIES EXPORT_NAME Headers)

# Whoever links the library sees only its public headers.
set_target_properties(brennet PROPERTIES
  EXPORT_NAME Brennet
  INTERFACE_INCLUDE_DIRECTORIES ""
  INTERFACE_LINK_LIBRARIES brennet_headers)

set(package_dir lib/cmake/Brennet)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/BrennetConfigVersion.cmake"
  COMPATIBILITY SameMajorVersion)
install(FILES sdk/BrennetConfig.cmake "${PROJECT_BINARY_DIR}/BrennetConfigVersion.cmake"
  DESTINATION ${package_dir})

if(MINGW AND CMAKE_CROSSCOMPILING)
  include(BrennetWindowsPackage)
else()
  set_target_properties(brennet PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  install(TARGETS brennet brennet_headers EXPORT BrennetTargets
    LIBRARY DESTINATION lib ARCHIVE DESTINATION lib RUNTIME DESTINATION bin)
  install(EXPORT BrennetTargets NAMESPACE Brennet:: DESTINATION ${package_dir})
endif()
