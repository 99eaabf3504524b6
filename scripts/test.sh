#!/usr/bin/env bash
# Builds everything and runs every test (C++ and JUnit) with CTest, in two
# builds: the normal one (build/), whose suite includes the JUnit suite
# under -Xcheck:jni, and one with AddressSanitizer and
# UndefinedBehaviorSanitizer (build-asan/). Extra arguments go to both
# CMake configurations (e.g. -DCMAKE_CXX_COMPILER_LAUNCHER=ccache).
# ORLA_SKIP_SANITIZE=1 runs the normal build only.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh

pass() {  # build dir, tests to leave out (a CTest regex, or empty), then CMake options
  local dir=$1 exclude=$2
  shift 2
  echo "=== $dir: build"
  cmake -S . -B "$dir" "$@" >/dev/null
  cmake --build "$dir" -j2
  echo "=== $dir: tests"
  (cd "$dir" && ctest --output-on-failure -j2 ${exclude:+-E "$exclude"})
}

pass build "" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORLA_SANITIZE=OFF "$@"
if [ "${ORLA_SKIP_SANITIZE:-0}" != 1 ]; then
  # The example and product-jar runs start a JVM without the sanitizer
  # environment (ORLA_JVM_TEST_ENV), so the instrumented library cannot load
  # there; the normal pass runs them.
  pass build-asan '^(example_|product\.)' -DCMAKE_BUILD_TYPE=RelWithDebInfo -DORLA_SANITIZE=ON "$@"
fi
