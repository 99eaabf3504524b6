#!/usr/bin/env bash
# Builds everything and runs every test (C++ and JUnit) with CTest.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2
cd build && ctest --output-on-failure -j2
