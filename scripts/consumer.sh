# Builds tests/consumer, a program of somebody else's; sourced by what checks an installation.

# with_cmake BUILD OPTION...: builds it with CMake, and runs it with the shared and the static library.
with_cmake() {
  cmake -G Ninja -S tests/consumer -B "$@" >/dev/null
  cmake --build "$1" -j "$jobs" >/dev/null
  (cd "$1" && ctest --no-tests=error --output-on-failure >"$1/test.log") || { cat "$1/test.log" >&2; return 1; }
}

# with_pkg_config COMPILER DIRECTORY OPTION...: builds DIRECTORY/shared, and DIRECTORY/static without any shared library.
with_pkg_config() {
  local compiler=$1 directory=$2
  local flags=(pkg-config "${@:3}" --cflags --libs)
  "$compiler" -std=c11 tests/consumer/main.c -o "$directory/shared" $("${flags[@]}" kov_protocol kov_platform)
  "$compiler" -std=c11 -static tests/consumer/main.c -o "$directory/static" \
    $("${flags[@]}" --static kov_protocol kov_platform)
}
