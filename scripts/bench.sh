#!/usr/bin/env bash
# Builds in release mode and prints the benchmark figures (read-tag
# conversion throughput, forwarder and bare JNI call costs; the simulator's
# own cost per read and per round).
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build-release -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build build-release -j2 --target orlajni halyard java_sdk field_bench
build-release/field_bench
exec java -Dorla.sim=build-release/libhalyard.so -Dorla.lib=build-release/liborlajni.so \
  -cp build-release/java/sdk:build-release/java/demo com.kovra.rfid.orla.demo.ReadTagsBench "$@"
