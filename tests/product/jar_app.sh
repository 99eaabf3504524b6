#!/usr/bin/env bash
# jar_app.sh JAVA_OUT WORK_DIR VERSION JNI_LIBRARY
# An application compiled against orla-sdk.jar alone runs on the simulated
# reader with only the two jars on its class path: no -D, no
# LD_LIBRARY_PATH. Then the loader's failures: each names the file it
# tried and where the name came from.
source "$(dirname "$0")/checks.sh"
java_out=$1 work=$2 version=$3 jni_library=$4
sdk=$java_out/orla-sdk.jar sim=$java_out/orla-sim.jar
classes=$work/classes
rm -rf "$classes"
javac -d "$classes" -cp "$sdk" "$(dirname "$0")/JarApp.java"

run() {
  env -u LD_LIBRARY_PATH -u JAVA_TOOL_OPTIONS java "$@" 2>&1
}

out=$(run -cp "$sdk:$sim:$classes" JarApp) || fail "the application failed: $out"
expect_contains "$out" "version $version" "OrlaLibrary.version()"
reads=$(sed -n 's/^reads //p' <<<"$out")
[ "${reads:-0}" -gt 0 ] || fail "no tags read: $out"

missing=$work/no-such-dir/liborlajni.so
out=$(cd "$work" && run -Dorla.lib=no-such-dir/liborlajni.so -cp "$sdk:$sim:$classes" JarApp) &&
  fail "a missing orla.lib loaded: $out"
expect_contains "$out" "UnsatisfiedLinkError" "missing orla.lib"
expect_contains "$out" "$missing" "missing orla.lib"
expect_contains "$out" "system property orla.lib=no-such-dir/liborlajni.so" "missing orla.lib"
expect_contains "$out" "no such file" "missing orla.lib"

out=$(run -Dorla.sim="$work/no-sim.so" -cp "$sdk:$sim:$classes" JarApp) &&
  fail "a missing orla.sim loaded: $out"
expect_contains "$out" "$work/no-sim.so (named by the system property orla.sim=" "missing orla.sim"

out=$(run -cp "$sdk:$classes" -Djava.library.path="$work" JarApp) &&
  fail "loaded without any JNI library: $out"
expect_contains "$out" "from java.library.path or /platform/lib (no orlajni in java.library.path: $work)" "nothing to load"
expect_contains "$out" "orla-sim.jar" "nothing to load"
out=$(run -Dorla.lib="$jni_library" -cp "$sdk:$classes" JarApp) &&
  fail "loaded without a reader API library: $out"
expect_contains "$out" "cannot load the JNI library $jni_library (named by the system property orla.lib=" \
  "no reader API library"
expect_contains "$out" "needs the reader API library libhalyard.so" "no reader API library"

echo "$reads reads through the jars; loader errors explain themselves"
