#!/usr/bin/env bash
# Installs the Debian packages named in the arguments' lists that are missing. Sourced lists: build, test, bench, fuzz.
set -euo pipefail

build=(g++ cmake ninja-build pkg-config libcli11-dev nlohmann-json3-dev libserialport-dev libfreexl-dev libzip-dev
  libpugixml-dev libxlsxwriter-dev libcurl4-openssl-dev)
test=(libgtest-dev clang-format python3 git libreoffice-calc-nogui python3-pyftpdlib)
bench=(libbenchmark-dev)
fuzz=(clang libclang-rt-14-dev python3)

wanted=()
for list in "$@"; do
  declare -n packages=$list
  wanted+=("${packages[@]}")
done

missing=()
for package in "${wanted[@]}"; do
  dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || { echo "Please install as root: apt-get install ${missing[*]}" >&2; exit 1; }
  root=(sudo)
fi
echo "Installing: ${missing[*]}" >&2
export DEBIAN_FRONTEND=noninteractive
"${root[@]}" apt-get update -qq >&2
"${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
