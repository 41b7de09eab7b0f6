#!/usr/bin/env bash
# A new user's first steps with the built program, on a copy of the data folder: $1 is polarkreis-cli.
set -euo pipefail
program=$(readlink -f "$1")
top=$(cd "$(dirname "$(readlink -f "$0")")/.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp -r "$top/data/." "$folder"
cd "$folder"
"$program" --help >/dev/null
for project in *.prj; do
  "$program" --data . --language ENG simulate "$project" >/dev/null
  test -s ERG_TEMP.DAT && test -s ergEN1.DAT
  "$program" --data . --language GER point "$project" --json >/dev/null
done
"$program" --data . --language ENG simulate >/dev/null
"$program" --data . --language ENG import adc "R404A cold store.adc" --settings "logger R404A.json" --out store.fmd >/dev/null
"$program" --data . --language ENG diagnose store.fmd --settings "logger R404A.json" --yes >/dev/null
test -s ergDiaG.DAT
"$program" --data . --language ENG monitor set K17 nm="Cold store" fn=R744 server=1 >/dev/null 2>&1
"$program" --data . --language ENG monitor show K17 --json >/dev/null
test -s FMD_M_Global.ini
echo "First use: all sample projects calculate, a sample measurement is judged, a plant is registered."
