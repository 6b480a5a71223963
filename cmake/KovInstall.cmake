# Installation in three components: library, headers and platform. A device that brings its own services installs no
# platform; the CMake package then has no kov::platform.
include(CMakePackageConfigHelpers)

set(kov_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/kov_protocol")

install(TARGETS kov_protocol kov_protocol_static EXPORT kov_protocol-targets
        LIBRARY COMPONENT library NAMELINK_COMPONENT headers
        ARCHIVE COMPONENT headers)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/kov_protocol" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        COMPONENT headers FILES_MATCHING PATTERN "*.h")
install(EXPORT kov_protocol-targets NAMESPACE kov:: DESTINATION "${kov_package_dir}" COMPONENT headers)

install(TARGETS kov_platform EXPORT kov_platform-targets ARCHIVE COMPONENT platform)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/platform/include/kov_platform" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
        COMPONENT headers FILES_MATCHING PATTERN "*.h" PATTERN "bytes.h" EXCLUDE)
install(EXPORT kov_platform-targets NAMESPACE kov:: DESTINATION "${kov_package_dir}" COMPONENT platform)

write_basic_package_version_file("${PROJECT_BINARY_DIR}/kov_protocol-config-version.cmake"
                                 COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_SOURCE_DIR}/cmake/kov_protocol-config.cmake"
              "${PROJECT_BINARY_DIR}/kov_protocol-config-version.cmake"
        DESTINATION "${kov_package_dir}" COMPONENT headers)

function(kov_pkg_config name component)
  configure_file("${PROJECT_SOURCE_DIR}/cmake/${name}.pc.in" "${PROJECT_BINARY_DIR}/${name}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/${name}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
          COMPONENT ${component})
endfunction()
kov_pkg_config(kov_protocol headers)
kov_pkg_config(kov_platform platform)
