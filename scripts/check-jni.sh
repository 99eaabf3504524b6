#!/usr/bin/env bash
# Runs a JVM command line (with -Xcheck:jni) and fails when the command fails
# or when the JVM reports any JNI warning other than the local-reference
# capacity one: the natives never delete a local reference, so that warning
# is expected. Prints every offending line with the stack that follows it.
set -uo pipefail
log=$(mktemp)
trap 'rm -f "$log"' EXIT
"$@" 2>&1 | tee "$log"
status=${PIPESTATUS[0]}
capacity='^WARNING: JNI local refs: [0-9]+, exceeds capacity: [0-9]+$'
offending=$(awk -v capacity="$capacity" '
  /^(WARNING|Warning)[: ]|FATAL ERROR in native method/ { keep = ($0 !~ capacity) }
  /^[^\t]/ && !/^(WARNING|Warning)[: ]|FATAL ERROR in native method/ { keep = 0 }
  keep' "$log")
if [ -n "$offending" ]; then
  echo
  echo "JNI check: warnings other than the local-reference capacity one:"
  echo "$offending"
  exit 1
fi
if [ "$status" -ne 0 ]; then
  echo "JNI check: the command failed with status $status"
  exit "$status"
fi
count=$(grep -cE "$capacity" "$log" || true)
echo "JNI check: clean ($count local-reference capacity warnings, expected)"
