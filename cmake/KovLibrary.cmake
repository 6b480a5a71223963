# The libraries: kov::protocol (shared), kov::protocol_static and kov::platform. Every source is compiled once, and is
# found by its place: a new file below src/ or platform/src/ needs no line here.

file(GLOB_RECURSE kov_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/*.cpp")
file(GLOB kov_platform_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/platform/src/*.cpp")

# Number texts are read alike by the codec and by the reader. Each library carries them, so that the codec does not
# need ours when the application brings its own services.
set(kov_shared_sources "${PROJECT_SOURCE_DIR}/platform/src/value_text.cpp")
list(REMOVE_ITEM kov_platform_sources ${kov_shared_sources})

set(kov_include "${PROJECT_SOURCE_DIR}/include")
set(kov_platform_include "${PROJECT_SOURCE_DIR}/platform/include")

# Hidden visibility: what a public header marks KOV_API is exported, nothing else.
function(kov_hidden_objects target)
  add_library(${target} OBJECT ${ARGN})
  target_include_directories(${target} PRIVATE "${kov_include}" "${kov_platform_include}" "${PROJECT_SOURCE_DIR}/src")
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  kov_library_options(${target})
endfunction()

kov_hidden_objects(kov_value_text ${kov_shared_sources})
kov_hidden_objects(kov_protocol_objects ${kov_sources})
set(kov_objects $<TARGET_OBJECTS:kov_protocol_objects> $<TARGET_OBJECTS:kov_value_text>)

function(kov_codec target kind)
  add_library(${target} ${kind} ${kov_objects})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${kov_include}>
                                              $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  set_target_properties(${target} PROPERTIES OUTPUT_NAME kov_protocol LINKER_LANGUAGE CXX)
endfunction()

# The platform services stay undefined in the shared library: the program that loads it defines them.
kov_codec(kov_protocol SHARED)
set_target_properties(kov_protocol PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}
                                              EXPORT_NAME protocol)
target_link_options(kov_protocol PRIVATE "-Wl,--version-script=${PROJECT_SOURCE_DIR}/cmake/exports.map")
set_target_properties(kov_protocol PROPERTIES LINK_DEPENDS "${PROJECT_SOURCE_DIR}/cmake/exports.map")

kov_codec(kov_protocol_static STATIC)
set_target_properties(kov_protocol_static PROPERTIES EXPORT_NAME protocol_static)

# One object per service group. A program that defines all functions of a group keeps ours out of its link.
add_library(kov_platform STATIC ${kov_platform_sources} $<TARGET_OBJECTS:kov_value_text>)
target_include_directories(kov_platform PUBLIC $<BUILD_INTERFACE:${kov_platform_include}>
                                               $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
set_target_properties(kov_platform PROPERTIES EXPORT_NAME platform)
kov_library_options(kov_platform)

add_library(kov::protocol ALIAS kov_protocol)
add_library(kov::protocol_static ALIAS kov_protocol_static)
add_library(kov::platform ALIAS kov_platform)
