#!/bin/sh
# stub_reader_test.sh ORLA_CHECK LIBRARY CXX WORKDIR DROPPED [READABLE]
# Builds a stand-in libhalyard.so that defines every function LIBRARY
# imports except DROPPED, and expects orla-check to fail (exit 1) naming
# DROPPED, and READABLE (its C++ form) when given, as the one missing
# function.
set -u
check=$1 library=$2 cxx=$3 work=$4 dropped=$5 readable=${6:-}
rm -rf "$work" && mkdir -p "$work" || exit 1

imports=$("$check" --library "$library" --list-imports) || { echo "orla-check --list-imports failed" >&2; exit 1; }
printf '%s\n' "$imports" | grep -qxF -- "$dropped" || { echo "the library does not import $dropped" >&2; exit 1; }
printf '%s\n' "$imports" | grep -vxF -- "$dropped" | sed 's/.*/extern "C" void &() {}/' > "$work/stub.cpp"
"$cxx" -shared -fPIC -o "$work/libhalyard.so" "$work/stub.cpp" || exit 1

"$check" --library "$library" --reader-api "$work/libhalyard.so" > "$work/out" 2>&1
status=$?
cat "$work/out"
[ "$status" -eq 1 ] || { echo "expected exit status 1, got $status" >&2; exit 1; }
[ "$(grep -c "^  FAIL " "$work/out")" -eq 1 ] || { echo "expected exactly one failure" >&2; exit 1; }
grep -qF -- "missing function: $dropped" "$work/out" || { echo "$dropped not named" >&2; exit 1; }
if [ -n "$readable" ]; then
  grep -qF -- "$readable" "$work/out" || { echo "$readable not named" >&2; exit 1; }
fi
exit 0
