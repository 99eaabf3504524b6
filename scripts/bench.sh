#!/usr/bin/env bash
# Builds in release mode and runs the benchmark (the tag writer and a
# forwarder against their floors), the simulator's own costs (per delivered
# read, per round), the stress run (16 threads, one simulated reader each,
# 100k mixed calls each) and the soak run (1M tag conversions, 1M forwarder
# calls, resident memory sampled). Exits non-zero when the stress or soak
# run finds a fault. Arguments go to the benchmark.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build-release -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build build-release -j2 --target orlajni halyard java_sdk field_bench
run() {
  java "${JVM_OPTIONS[@]}" -Dorla.sim=build-release/libhalyard.so -Dorla.lib=build-release/liborlajni.so \
    -cp build-release/java/sdk:build-release/java/demo "com.kovra.rfid.orla.demo.$1" "${@:2}"
}
JVM_OPTIONS=()
echo "== benchmark"
run ReadTagsBench "$@"
echo "== simulator"
build-release/bench/field_bench
echo "== stress"
run StressRun
echo "== soak"
JVM_OPTIONS=(-Xms64m -Xmx64m -XX:+AlwaysPreTouch)  # resident memory follows the natives
run SoakRun
