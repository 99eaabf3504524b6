#!/usr/bin/env bash
# Builds the library, the simulator and the jars, then runs the demo reader
# application on the simulated reader. Arguments go to the demo (--help
# lists them). HALYARD_SIM_TAGS may name a tag file relative to the
# directory the script is called from.
set -euo pipefail
if [ -n "${HALYARD_SIM_TAGS:-}" ]; then
  case $HALYARD_SIM_TAGS in
    /*) ;;
    *) HALYARD_SIM_TAGS=$PWD/$HALYARD_SIM_TAGS ;;
  esac
  if [ ! -r "$HALYARD_SIM_TAGS" ]; then
    echo "demo: HALYARD_SIM_TAGS: cannot read $HALYARD_SIM_TAGS" >&2
    exit 2
  fi
  export HALYARD_SIM_TAGS
fi
cd "$(dirname "$0")/.."
./scripts/setup.sh
log=build/demo-build.log
mkdir -p build
if ! { cmake -S . -B build -DCMAKE_BUILD_TYPE=RelWithDebInfo &&
       cmake --build build -j2 --target jars java_sdk; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "demo: the build failed (log above, also in $log)" >&2
  exit 1
fi
exec java -cp build/java/orla-sdk.jar:build/java/orla-sim.jar:build/java/demo \
  com.kovra.rfid.orla.demo.ReaderDemo "$@"
