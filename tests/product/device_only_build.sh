#!/usr/bin/env bash
# device_only_build.sh SOURCE_DIR WORK_DIR BUILT_LIBRARY
# Configures and builds the device-only configuration (no reader API library
# at hand: the link-only stub), installs everything it installs and checks
# that the stub stayed behind. Keeps its build directory, so that later runs
# are incremental; uses ccache when there is one. Also checks that a reader
# API library with another soname is refused at configure time.
source "$(dirname "$0")/checks.sh"
source_dir=$1 work=$2 not_reader_api=$3
build=$work/build prefix=$work/prefix
launcher=()
if command -v ccache >/dev/null; then
  launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
log=$work/log.txt
mkdir -p "$work"
if ! { cmake -S "$source_dir" -B "$build" -DORLA_DEVICE_ONLY=ON -DCMAKE_BUILD_TYPE=Debug \
         "${launcher[@]}" && cmake --build "$build" -j2 --target orlajni; } >"$log" 2>&1; then
  cat "$log" >&2
  fail "device-only build"
fi
[ -f "$build/reader-api-stub/libhalyard.so" ] || fail "no link-only stub was built"
[ ! -e "$build/libhalyard.so" ] || fail "the device-only build built the simulator"

rm -rf "$prefix"
cmake --install "$build" --prefix "$prefix" >"$log" 2>&1 || { cat "$log" >&2; fail "install"; }
files=$(cd "$prefix" && find . -type f | sort)
expect_absent "$files" "halyard" "installed files"
expect_contains "$files" "./platform/lib/liborlajni.so" "installed files"
check_reader_linkage "$prefix/platform/lib/liborlajni.so"

refused=$work/refused
if cmake -S "$source_dir" -B "$refused" -DORLA_DEVICE_ONLY=ON -DORLA_READER_API="$not_reader_api" \
     >"$log" 2>&1; then
  fail "a reader API library without the soname libhalyard.so was accepted"
fi
expect_contains "$(cat "$log")" "soname libhalyard.so" "configure message"
rm -rf "$refused"
echo "device-only build: $files"
