#!/usr/bin/env bash
# Builds in build-package/ and makes every package into build-package/packages/:
# the device component, the field tools and the developer kit, each as .deb
# and .tar.gz.
set -euo pipefail
cd "$(dirname "$0")/.."
./scripts/setup.sh
cmake -S . -B build-package -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=OFF >/dev/null
cmake --build build-package -j2 >/dev/null
rm -rf build-package/packages
for package in device fieldtools devkit; do
  (cd build-package && cpack --config CPackConfig.cmake -D ORLA_PACKAGE=$package >/dev/null)
done
ls -l build-package/packages/*.deb build-package/packages/*.tar.gz
