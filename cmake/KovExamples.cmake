# The examples: examples/NAME.cpp or NAME.c becomes the program kov_NAME, and a test runs it without arguments.
# They use the shared library, as most applications do.

file(GLOB kov_example_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*.cpp"
                                                "${PROJECT_SOURCE_DIR}/examples/*.c")

foreach(source IN LISTS kov_example_sources)
  get_filename_component(name "${source}" NAME_WE)
  add_executable(kov_${name} "${source}")
  target_link_libraries(kov_${name} PRIVATE kov_protocol kov_platform)
  kov_program_options(kov_${name})
  if(name STREQUAL "demo")  # two processes that talk to each other
    add_test(NAME example.demo COMMAND "${PROJECT_SOURCE_DIR}/scripts/demo" ${CMAKE_CROSSCOMPILING_EMULATOR}
                                       $<TARGET_FILE:kov_demo>)
  else()
    add_test(NAME example.${name} COMMAND kov_${name})
  endif()
  set_tests_properties(example.${name} PROPERTIES TIMEOUT 60)
endforeach()
