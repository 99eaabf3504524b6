#!/usr/bin/env bash
# Builds the library and the simulator, then runs the demo reader
# application on the simulated reader. Arguments go to the demo
# (--help lists them).
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2 --target orlajni halyard java_sdk
exec java -Dorla.sim=build/libhalyard.so -Dorla.lib=build/liborlajni.so \
  -cp build/java/sdk:build/java/demo com.kovra.rfid.orla.demo.ReaderDemo "$@"
