#!/usr/bin/env bash
# demo_usage.sh JAVA_OUT
# The demo's command line: --help lists the defaults; each usage error is
# one message on stderr, exit status 2, no stack trace, nothing run.
source "$(dirname "$0")/checks.sh"
java_out=$1
demo() {
  env -u LD_LIBRARY_PATH java -cp "$java_out/orla-sdk.jar:$java_out/orla-sim.jar:$java_out/demo" \
    com.kovra.rfid.orla.demo.ReaderDemo "$@"
}

help=$(demo --help) || fail "--help failed"
for default in "default 3000" "default sim-reader" "default 5084" "ignores the host" HALYARD_SIM_TAGS; do
  expect_contains "$help" "$default" "--help"
done

while IFS='|' read -r args message; do
  read -ra argv <<<"$args"
  status=0
  err=$(demo "${argv[@]}" 2>&1 >/dev/null) || status=$?
  [ "$status" -eq 2 ] || fail "demo $args: exit status $status, not 2"
  expect_contains "$err" "demo: $message" "demo $args"
  expect_absent "$err" "Exception" "demo $args"
  expect_absent "$err" "	at " "demo $args"
done <<'CASES'
--bogus|unknown option '--bogus'
--duration|--duration needs a value
--duration soon|--duration takes a number from 1 to
--duration 0|--duration takes a number from 1 to
--port 70000|--port takes a number from 1 to 65535, not '70000'
--antennas 1,x|--antennas takes a number from 1 to
--filter 30G4|--filter takes 1 to 64 hexadecimal digits, not '30G4'
--host|--host needs a value
CASES
echo "demo usage errors: exit 2, one message each"
