# The examples: examples/NAME.cpp or NAME.c becomes the program kov_NAME, and a test runs it without arguments.
# They use the shared library, as most applications do, but for those named here.

file(GLOB kov_example_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.cpp"
                                                "${PROJECT_SOURCE_DIR}/examples/*.c")

set(kov_static_examples own_services)

# Another library's XML reader in place of ours, where that library is installed.
find_package(pugixml QUIET)
if(NOT pugixml_FOUND)
  list(REMOVE_ITEM kov_example_sources "${PROJECT_SOURCE_DIR}/examples/own_reader.cpp")
endif()

foreach(source IN LISTS kov_example_sources)
  get_filename_component(name "${source}" NAME_WE)
  add_executable(kov_${name} "${source}")
  if(name IN_LIST kov_static_examples)
    target_link_libraries(kov_${name} PRIVATE kov_protocol_static kov_platform)
  else()
    target_link_libraries(kov_${name} PRIVATE kov_protocol kov_platform)
  endif()
  kov_program_options(kov_${name})
  if(name STREQUAL "demo")  # two processes that talk to each other
    add_test(NAME example.demo COMMAND "${PROJECT_SOURCE_DIR}/scripts/demo" ${CMAKE_CROSSCOMPILING_EMULATOR}
                                       $<TARGET_FILE:kov_demo>)
  else()
    add_test(NAME example.${name} COMMAND kov_${name})
  endif()
  set_tests_properties(example.${name} PROPERTIES TIMEOUT 60)
endforeach()

if(TARGET kov_own_reader)
  target_link_libraries(kov_own_reader PRIVATE pugixml::pugixml)
endif()
