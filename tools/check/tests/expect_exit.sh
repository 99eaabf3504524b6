#!/bin/sh
# expect_exit.sh STATUS TEXT COMMAND...
# Runs COMMAND; passes when it exits with STATUS and its output (stdout and
# stderr) holds TEXT (an empty TEXT matches anything).
expected=$1
text=$2
shift 2
output=$("$@" 2>&1)
status=$?
printf '%s\n' "$output"
if [ "$status" -ne "$expected" ]; then
  echo "expected exit status $expected, got $status" >&2
  exit 1
fi
if [ -n "$text" ] && ! printf '%s\n' "$output" | grep -qF -- "$text"; then
  echo "expected the output to hold: $text" >&2
  exit 1
fi
exit 0
