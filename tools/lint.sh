#!/usr/bin/env bash
# Checks the layout of the code with clang-format. tools/tidy.sh checks the code itself.
set -uo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp')
if ! clang-format --dry-run --Werror "${files[@]}"; then
    echo "Run: clang-format -i FILE"
    exit 1
fi
echo "The layout of ${#files[@]} files is as agreed."
