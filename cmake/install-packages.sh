#!/bin/bash
# Sees to the Debian packages that a group of steps needs.
#
# Usage: cmake/install-packages.sh GROUP...
#   build   what builds and tests the system in 64 bit
#   32      the 32-bit compiler and libraries
#   clang   the second compiler
#   check   the formatter
#   bench   Google Benchmark and the peers that the benches compare with
#   peers   further peers of the benches, which are large
#   tidy    the linter
#   browser what the tool's pictures are tested in
# Where all are installed it does nothing.  As root on Debian it installs what is missing; anybody
# else gets the command to run, and exit 1.  On other systems it lists the needs and goes on.
set -euo pipefail

declare -A packages=(
  [build]="g++ make cmake ninja-build pkg-config nlohmann-json3-dev libcli11-dev googletest"
  [32]="g++-multilib"
  [clang]="clang"
  [check]="clang-format-14"
  [bench]="libbenchmark-dev libboost-dev libsigc++-2.0-dev libabsl-dev"
  [peers]="librttr-dev qt6-base-dev"
  [tidy]="clang-tidy-14"
  [browser]="chromium fonts-dejavu-core"
)

wanted=()
for group in "$@"; do
  if [ -z "${packages[$group]:-}" ]; then
    echo "cmake/install-packages.sh: error: no group \"$group\" (${!packages[*]})" >&2
    exit 2
  fi
  read -ra names <<<"${packages[$group]}"
  wanted+=("${names[@]}")
done
[ ${#wanted[@]} -gt 0 ] || { sed -n '4,15s/^# \?//p' "$0"; exit 2; }

if ! command -v dpkg-query >/dev/null; then
  echo "This is no Debian system.  Needed are what Debian calls: ${wanted[*]}" >&2
  exit 0
fi

# A package that another one provides counts as well: Debian keeps pkg-config so.
installed=$(dpkg-query -W -f='${db:Status-Status}|${Package}, ${Provides}\n' |
            sed -n 's/^installed|//p' | sed 's/ *([^)]*)//g; s/, */\n/g')
missing=()
for name in "${wanted[@]}"; do
  grep -qxF -- "$name" <<<"$installed" || missing+=("$name")
done
[ ${#missing[@]} -gt 0 ] || exit 0

command="apt-get install -y --no-install-recommends ${missing[*]}"
if [ "$(id -u)" != 0 ]; then
  echo "Packages are missing.  Run this, then try again:" >&2
  echo "  sudo $command" >&2
  exit 1
fi
echo "Installing: ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
apt-get update -q
$command
