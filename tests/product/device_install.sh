#!/usr/bin/env bash
# device_install.sh BUILD_DIR WORK_DIR VERSION
# Installs the device component into a fresh prefix and checks the tree:
# the stripped library at platform/lib, its debug file under the build ID,
# nothing else (no simulator), and the library's linkage and version note.
# Then the developer kit: the simulator only in a directory of its own.
source "$(dirname "$0")/checks.sh"
build=$1 work=$2 version=$3
prefix=$work/device
rm -rf "$prefix"
cmake --install "$build" --component device --prefix "$prefix" >/dev/null

library=$prefix/platform/lib/liborlajni.so
build_id=$(readelf -n "$library" | sed -n 's/.*Build ID: //p')
[ -n "$build_id" ] || fail "$library has no build ID"
debug=lib/debug/.build-id/${build_id:0:2}/${build_id:2}.debug
files=$(cd "$prefix" && find . -type f -o -type l | sed 's|^\./||' | sort)
expected=$(printf '%s\n' "$debug" platform/lib/liborlajni.so | sort)
[ "$files" = "$expected" ] || fail "installed files: $files; expected: $expected"

sections=$(readelf -S -W "$library")
expect_absent "$sections" ".symtab" "installed library not stripped"
expect_absent "$sections" ".debug_" "installed library keeps debug sections"
expect_contains "$(readelf -S -W "$prefix/$debug")" ".debug_info" "debug file"
[ "$(readelf -n "$prefix/$debug" | sed -n 's/.*Build ID: //p')" = "$build_id" ] ||
  fail "debug file's build ID differs from the library's"
check_reader_linkage "$library"
expect_contains "$(strings "$library")" "orla-jni $version" "version text"
expect_contains "$(readelf -n "$library")" "orla " "version note"
echo "device component: $files"

kit=$work/devkit
rm -rf "$kit"
cmake --install "$build" --component devkit --prefix "$kit" >/dev/null
files=$(cd "$kit" && find . -type f | sed 's|^\./||' | sort)
for file in share/java/orla-sdk.jar share/java/orla-sim.jar lib/orla-sim/libhalyard.so \
            lib/orla-sim/liborlajni.so share/doc/orla-jni/README.md bin/orla-check bin/orla-trace \
            lib/orla-trace/libhalyard-trace.so; do
  grep -qx "$file" <<<"$files" || fail "developer kit without $file: $files"
done
[ "$(grep -c 'libhalyard\.so$' <<<"$files")" -eq 1 ] || fail "more than one simulator in the kit: $files"
echo "developer kit: $(wc -l <<<"$files") files"

tools=$work/fieldtools
rm -rf "$tools"
cmake --install "$build" --component fieldtools --prefix "$tools" >/dev/null
files=$(cd "$tools" && find . -type f | sed 's|^\./||' | sort)
expected=$(printf '%s\n' opt/orla-tools/bin/orla-check opt/orla-tools/bin/orla-trace \
  opt/orla-tools/lib/libhalyard-trace.so | sort)
[ "$files" = "$expected" ] || fail "field tools: $files; expected: $expected"
echo "field tools: $files"
