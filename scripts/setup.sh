#!/usr/bin/env bash
# Installs what the build needs on a fresh Debian machine (root, apt).
set -euo pipefail
need=()
command -v cmake >/dev/null || need+=(cmake)
command -v g++ >/dev/null || need+=(g++)
command -v javac >/dev/null || need+=(openjdk-17-jdk-headless)
[ -f /usr/include/gtest/gtest.h ] || need+=(libgtest-dev)
[ -f /usr/share/java/junit-platform-console-standalone.jar ] || need+=(junit5)
if [ ${#need[@]} -gt 0 ]; then
  echo "installing: ${need[*]}"
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq "${need[@]}"
fi
