# The examples: examples/NAME.cpp or NAME.c becomes the program kov_NAME, and so do all sources of a directory
# examples/NAME/. A test runs it without arguments. They use the shared library, as most applications do, but for those
# named here.
set(kov_static_examples own_services)

file(GLOB kov_examples CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/examples/*")
list(FILTER kov_examples INCLUDE REGEX "/[a-z0-9_]+(\\.cpp|\\.c)?$")

# Another library's XML reader in place of ours, where that library is installed.
find_package(pugixml QUIET)
if(NOT pugixml_FOUND)
  list(REMOVE_ITEM kov_examples "${PROJECT_SOURCE_DIR}/examples/own_reader.cpp")
endif()

foreach(example IN LISTS kov_examples)
  get_filename_component(name "${example}" NAME_WE)
  set(sources "${example}")
  if(IS_DIRECTORY "${example}")
    file(GLOB sources CONFIGURE_DEPENDS "${example}/*.cpp" "${example}/*.c")
  endif()
  add_executable(kov_${name} ${sources})
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
