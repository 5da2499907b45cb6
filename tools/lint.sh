#!/usr/bin/env bash
# Checks the layout of the code with clang-format and the code itself with clang-tidy. Needs the
# compile commands of the release build. Findings of unchanged files are remembered in build/lint.
set -uo pipefail
cd "$(dirname "$0")/.."

mapfile -t files < <(git ls-files 'src/*.h' 'src/*.cpp' 'tests/*.h' 'tests/*.cpp')
if ! clang-format --dry-run --Werror "${files[@]}"; then
    echo "Run: clang-format -i FILE"
    exit 1
fi

# A file is checked again when it, any header or the rules have changed.
mkdir -p build/lint
common=$(cat .clang-tidy $(git ls-files 'src/*.h' 'src/*.def' 'tests/*.h') | sha256sum)
check() {
    local key
    key=build/lint/$({ echo "$1"; cat "$2"; } | sha256sum | cut -c1-32)
    [[ -e $key ]] && return 0
    if clang-tidy --quiet -p build/release "$2" 2>/dev/null; then
        touch "$key"
    else
        echo "clang-tidy: $2"
        return 1
    fi
}
export -f check
git ls-files 'src/*.cpp' | xargs -P "$(nproc)" -I{} bash -c 'check "$0" "$1"' "$common" {}
status=$?
((status == 0)) && echo "The style is as agreed."
exit $status
