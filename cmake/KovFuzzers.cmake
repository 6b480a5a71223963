# The fuzz targets: fuzz/NAME_fuzz.cpp becomes the program NAME_fuzz.
# Other files in fuzz/ are compiled into every target.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  message(FATAL_ERROR "The fuzz targets need clang")
endif()

file(GLOB kov_fuzz_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/fuzz/*_fuzz.cpp")
file(GLOB kov_fuzz_common CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/fuzz/*.cpp")
list(REMOVE_ITEM kov_fuzz_common ${kov_fuzz_sources} "")

foreach(library IN ITEMS kov_value_text kov_protocol_objects kov_platform)
  target_compile_options(${library} PRIVATE -fsanitize=fuzzer-no-link)
endforeach()

function(kov_fuzz_target name source)
  add_executable(${name} "${source}" ${kov_fuzz_common})
  target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/platform/src")
  target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_options(${name} PRIVATE -fsanitize=fuzzer)
  target_link_libraries(${name} PRIVATE kov_protocol_static kov_platform)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzzers")
  kov_program_options(${name})
endfunction()

add_custom_target(fuzzers)
foreach(source IN LISTS kov_fuzz_sources)
  get_filename_component(name "${source}" NAME_WE)
  kov_fuzz_target(${name} "${source}")
  add_dependencies(fuzzers ${name})
endforeach()

# One of them with a fault of its own, to see that faults are found.
kov_fuzz_target(planted_fault "${PROJECT_SOURCE_DIR}/fuzz/analysis_entry_fuzz.cpp")
target_compile_definitions(planted_fault PRIVATE KOV_PLANTED_FAULT)
set_target_properties(planted_fault PROPERTIES EXCLUDE_FROM_ALL ON)
