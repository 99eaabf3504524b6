#!/usr/bin/env bash
# Builds the library, the simulator and the examples, then runs one example
# on the simulated reader: ./scripts/example.sh TagAccess [host [args...]].
# Examples: TagAccess, EventsAndTriggers, AccessSequence, ReaderConfiguration.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ $# -lt 1 ]; then
  echo "usage: $0 EXAMPLE [host [args...]]" >&2
  ls java/examples/com/kovra/rfid/orla/examples | sed -n 's/\.java$//p' | grep -v '^ExampleReader$' >&2
  exit 2
fi
example=$1
shift
./scripts/setup.sh
cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build -j2 --target orlajni halyard java_examples
exec java -Dorla.sim=build/libhalyard.so -Dorla.lib=build/liborlajni.so \
  -cp build/java/sdk:build/java/orla-examples.jar "com.kovra.rfid.orla.examples.$example" "$@"
