# The package kov_protocol: kov::protocol, kov::protocol_static and, where it is installed, kov::platform.
include("${CMAKE_CURRENT_LIST_DIR}/kov_protocol-targets.cmake")
include("${CMAKE_CURRENT_LIST_DIR}/kov_platform-targets.cmake" OPTIONAL)
