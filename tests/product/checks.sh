# Shared checks of the product tests (sourced).
set -euo pipefail

fail() {
  echo "FAIL: $*" >&2
  exit 1
}

# expect_contains TEXT NEEDLE WHAT
expect_contains() {
  [[ "$1" == *"$2"* ]] || fail "$3: '$2' not in: $1"
}

# expect_absent TEXT NEEDLE WHAT
expect_absent() {
  [[ "$1" != *"$2"* ]] || fail "$3: '$2' unexpected in: $1"
}

# The NEEDED entries and the RUNPATH of a shared library, one a line.
dynamic_section() {
  readelf -d "$1" | sed -n 's/.*(\(NEEDED\|RUNPATH\|SONAME\)).*\[\(.*\)\]/\1 \2/p'
}

# Checks what a reader needs of an installed liborlajni.so: it needs
# libhalyard.so by soname and searches the reader's directories only.
check_reader_linkage() {
  local dynamic
  dynamic=$(dynamic_section "$1")
  expect_contains "$dynamic" "NEEDED libhalyard.so" "$1"
  [ "$(grep '^RUNPATH' <<<"$dynamic")" = "RUNPATH /platform/lib:/usr/lib:/apps/bin/libs" ] ||
    fail "$1: RUNPATH is not exactly the reader's: $dynamic"
}
