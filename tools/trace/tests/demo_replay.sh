#!/usr/bin/env bash
# demo_replay.sh JAVA_OUT SIMULATOR LIBRARY TRACER
# A demo session captured through the tracer in front of the simulator, then
# replayed by the simulator under the same demo: the demo shows the same tags
# with the same read counts, though its timed loop polls a different number
# of times; run with other antennas, the replay names the call that differs.
source "$(dirname "$0")/../../../tests/product/checks.sh"
java_out=$1 simulator=$2 library=$3 tracer=$4
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
demo() {
  java -Dorla.sim="$simulator" -Dorla.lib="$library" -cp "$java_out/sdk:$java_out/demo" \
    com.kovra.rfid.orla.demo.ReaderDemo --duration 600 "$@"
}
# The last table the demo drew: EPC, antenna and reads of each row, and the totals.
tags() {
  awk '/^[0-9A-F]+ +[0-9]+ +-?[0-9]+ +[0-9]+ +[a-z]+$/ { row[$1 " " $2] = $4 } /tags, .* reads$/ { total = $0 }
       END { for (r in row) print r, row[r]; print total }' "$1" | sort
}

LD_PRELOAD=$tracer HALYARD_TRACE_TARGET=$simulator HALYARD_TRACE_FILE=$dir/trace.jsonl demo >"$dir/traced" \
  || fail "the traced demo failed"
[ "$(tags "$dir/traced" | wc -l)" -gt 5 ] || fail "the traced demo read no tags: $(cat "$dir/traced")"

HALYARD_SIM_REPLAY=$dir/trace.jsonl demo >"$dir/replayed" 2>"$dir/replay.err" || fail "the replayed demo failed"
expect_absent "$(cat "$dir/replay.err")" "halyard-sim replay:" "the replay"
[ "$(tags "$dir/traced")" = "$(tags "$dir/replayed")" ] ||
  fail "the replay shows other tags: $(diff <(tags "$dir/traced") <(tags "$dir/replayed"))"

HALYARD_SIM_REPLAY=$dir/trace.jsonl demo --antennas 1 >/dev/null 2>"$dir/differs.err" || true
expect_contains "$(cat "$dir/differs.err")" "(RFID_PerformInventory) differs from the trace: antennaInfo" \
  "a replay with other antennas"
echo "replayed: $(grep -m1 "tags, .* reads" <(tags "$dir/replayed"))"
