# The tests: one program of all tests/*.cpp. It brings its own logging and memory services, so that it sees every line
# that is logged and can refuse a block; the reader and the encoders are the platform's.

file(GLOB kov_test_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/*.cpp")

# Built from source, with the flags of this build: a sanitizer or another target machine needs its own.
set(KOV_GOOGLETEST_DIR "/usr/src/googletest" CACHE PATH "Sources of GoogleTest")
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory("${KOV_GOOGLETEST_DIR}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)
target_compile_options(gtest PRIVATE -w)
target_compile_options(gtest_main PRIVATE -w)

add_executable(kov_tests ${kov_test_sources})
target_include_directories(kov_tests PRIVATE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_SOURCE_DIR}/platform/src"
                                             "${PROJECT_SOURCE_DIR}/tests")
target_compile_definitions(kov_tests PRIVATE KOV_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
target_link_libraries(kov_tests PRIVATE kov_protocol_static kov_platform gtest_main)
kov_program_options(kov_tests)

if(CMAKE_CROSSCOMPILING)
  add_test(NAME kov_tests COMMAND kov_tests)  # in one go: each start under emulation costs more than most tests
else()
  include(GoogleTest)
  gtest_discover_tests(kov_tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endif()
