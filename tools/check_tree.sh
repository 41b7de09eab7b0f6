#!/usr/bin/env bash
# The form of the tree: formatted, no file above 600 lines, no function above 80.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
mapfile -t files < <(git ls-files '*.cpp' '*.h')

clang-format --dry-run -Werror "${files[@]}"

awk '
  FNR == 1 { if (lines > 600) { print file ": " lines " lines, at most 600"; bad = 1 } file = FILENAME; inside = 0 }
  { lines = FNR }
  !inside && /^[^ #\/}].*\{$/ && !/^(namespace|extern)/ && !/^(class|struct|enum|union)/ && !/=[ \t]*\{$/ {
    inside = 1; begin = FNR; head = $0
  }
  inside && /^\}/ {
    if (FNR - begin + 1 > 80) { print file ":" begin ": " FNR - begin + 1 " lines, at most 80: " head; bad = 1 }
    inside = 0
  }
  END { if (lines > 600) { print file ": " lines " lines, at most 600"; bad = 1 } exit bad }
' "${files[@]}"
