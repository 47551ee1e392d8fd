#!/usr/bin/env bash
# clang-format leaves nothing to change in any source, but for those that a program of the project writes.
#     format.sh SOURCES [-i]     -i: formats instead
set -euo pipefail
cd "$1"
git rev-parse --is-inside-work-tree >/dev/null 2>&1 || { echo "no git checkout: nothing tells which files are sources"; exit 77; }
mapfile -t sources < <(git ls-files '*.h' '*.hpp' '*.c' '*.cpp' | xargs grep -L '^/\* .*Written by write-')
if [[ ${2-} == -i ]]; then clang-format -i "${sources[@]}"; else clang-format --dry-run -Werror "${sources[@]}"; fi
