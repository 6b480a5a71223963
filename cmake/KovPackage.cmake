# Debian packages, one per install component: the shared library, what a developer needs, the platform services. The
# presets package-amd64 and package-armhf set the place of the libraries and the architecture; scripts/package runs them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kov-protocol)
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_CONTACT "kov_protocol maintainers <maintainers@kov-protocol.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library headers platform)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# The soname is a part of the name, so that two of them can be installed. The symbols that it imports are as old as the
# oldest supported release, so no version is named.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "libkov-protocol${PROJECT_VERSION_MAJOR}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "libc6, libgcc-s1, libstdc++6")
# Other packages find the one they depend on by shlibs. The trigger does what CPack's own scripts would.
set(kov_package_control "${PROJECT_BINARY_DIR}/package")
file(WRITE "${kov_package_control}/shlibs"
     "libkov_protocol ${PROJECT_VERSION_MAJOR} ${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (>= ${PROJECT_VERSION})\n")
file(WRITE "${kov_package_control}/triggers" "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${kov_package_control}/shlibs" "${kov_package_control}/triggers")

set(CPACK_DEBIAN_HEADERS_PACKAGE_NAME libkov-protocol-dev)
set(CPACK_DEBIAN_HEADERS_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_HEADERS_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_PLATFORM_PACKAGE_NAME libkov-platform-dev)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PLATFORM_PACKAGE_DEPENDS "libkov-protocol-dev (= ${PROJECT_VERSION})")

include(CPack)
cpack_add_component(library DESCRIPTION "The shared library.")
cpack_add_component(headers DESCRIPTION "Headers, the static library, and the packages for CMake and pkg-config.")
cpack_add_component(platform
                    DESCRIPTION "Reader, memory, logging and encoders that the library imports, as a static library.")
