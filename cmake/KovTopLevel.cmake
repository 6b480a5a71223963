# Settings of the whole build, made only when no other project includes this one.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
string(REPLACE "-O3" "-O2" CMAKE_C_FLAGS_RELEASE "${CMAKE_C_FLAGS_RELEASE}")
string(REPLACE "-O3" "-O2" CMAKE_CXX_FLAGS_RELEASE "${CMAKE_CXX_FLAGS_RELEASE}")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(KOV_CCACHE ccache)
if(KOV_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER "${KOV_CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${KOV_CCACHE}")
endif()

if(KOV_SANITIZE)
  add_compile_options(-fsanitize=${KOV_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${KOV_SANITIZE})
endif()
if(KOV_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()

enable_testing()
