#!/usr/bin/env bash
# Feeds every reader of foreign bytes with broken ones: tools/fuzz.sh SECONDS [TARGET...]
# Targets are the files fuzz/fuzz_*.cpp; two run at a time, each for so many seconds. What they learn stays in
# build/fuzz/corpus, an input that breaks a rule, crashes, hangs or takes too much memory lies in build/fuzz/findings
# and makes this script fail.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

seconds=${1:?seconds for each target}
shift
targets=("$@")
[ ${#targets[@]} -gt 0 ] || mapfile -t targets < <(cd fuzz && printf '%s\n' fuzz_*.cpp | sed 's/^fuzz_//; s/\.cpp$//')

tools/setup.sh fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "${targets[@]/#/fuzz_}"
build=build/fuzz
tools/fuzz_seeds.py "$build/seeds"

run() {
  target=$1
  moment=$build/run/$target
  rm -rf "$moment"
  mkdir -p "$moment" "$build/corpus/$target" "$build/log" "$build/findings"
  if ! nice "$build/bin/fuzz_$target" -max_total_time="$seconds" -timeout=30 -rss_limit_mb=1500 -max_len=65536 \
    -print_final_stats=1 -artifact_prefix="$moment/" "$build/corpus/$target" "$build/seeds/$target" \
    >"$build/log/$target" 2>&1; then
    tail -n 40 "$build/log/$target"
    for file in "$moment"/*; do [ ! -e "$file" ] || mv "$file" "$build/findings/$target-$(basename "$file")"; done
    echo "fuzz_$target: a finding, see $build/findings" >&2
    return 1
  fi
  # What lies here all the same broke a library in a process of its own, which is there for that.
  broken=$(find "$moment" -type f | wc -l)
  survived=
  [ "$broken" -eq 0 ] || survived=" ($broken broke a library, which the program survived)"
  echo "fuzz_$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$build/log/$target") inputs, none broke it$survived"
}

# Files of a moment live in memory.
[ -d /dev/shm ] && [ -w /dev/shm ] && export TMPDIR=/dev/shm
status=0
for ((i = 0; i < ${#targets[@]}; i += 2)); do
  pids=()
  for target in "${targets[@]:i:2}"; do
    run "$target" &
    pids+=($!)
  done
  for pid in "${pids[@]}"; do wait "$pid" || status=1; done
done
exit $status
