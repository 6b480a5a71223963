# Shared by the scripts, which source it: the project's directory, missing packages, builds of a preset.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$project"
jobs=$(nproc)

# Sanitizers name the source lines with what the compiler's package brings.
export ASAN_OPTIONS=${ASAN_OPTIONS:-allow_addr2line=1}
export MSAN_OPTIONS=${MSAN_OPTIONS:-allow_addr2line=1}
export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:allow_addr2line=1}

build_packages=(g++ cmake ninja-build googletest)
clang_packages=(clang libclang-rt-dev)

as_root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
  [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Installs those of the given Debian packages that are missing.
need() {
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  echo "Installing ${missing[*]}"
  local apt=(as_root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o Acquire::Retries=3)
  "${apt[@]}" update </dev/null
  "${apt[@]}" install --no-install-recommends "${missing[@]}" </dev/null
}

# build PRESET [TARGET...]: configures and builds into build/PRESET.
build() {
  local preset=$1
  shift
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset" -j "$jobs" ${1:+--target "$@"}
}

# run_tests PRESET: everything that a preset has built.
run_tests() {
  ctest --preset "$1" -j "$jobs"
}

# The seeds of the fuzz targets are the documents that the tests compose and receive; left in build/seeds.
make_seeds() {
  build release kov_tests
  mkdir -p build/seeds
  KOV_SEEDS=build/seeds build/release/kov_tests --gtest_brief=1 >/dev/null
}
