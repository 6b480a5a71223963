# The benchmarks: one program of all benchmarks/*.cpp, which measures us beside other ways to do the same.
find_package(benchmark REQUIRED)
find_package(EXPAT REQUIRED)
find_package(fmt REQUIRED)
find_package(LibXml2 REQUIRED)
find_package(pugixml REQUIRED)
find_library(KOV_TINYXML2 tinyxml2 REQUIRED)

file(GLOB kov_benchmark_sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/benchmarks/*.cpp")
add_executable(kov_benchmarks ${kov_benchmark_sources})
target_link_libraries(kov_benchmarks PRIVATE kov_protocol_static kov_platform benchmark::benchmark EXPAT::EXPAT
                                             fmt::fmt LibXml2::LibXml2 pugixml::pugixml "${KOV_TINYXML2}")
kov_program_options(kov_benchmarks)
