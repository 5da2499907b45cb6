#!/usr/bin/env bash
# Checks the code with clang-tidy; takes some minutes the first time, then only what has changed. Needs
# the compile commands of the release build. With arguments: only these files.
set -uo pipefail
cd "$(dirname "$0")/.."

# A file is checked again when it, any header or the rules have changed.
mkdir -p build/tidy
common=$(cat .clang-tidy $(git ls-files 'src/*.h' 'src/*.def') | sha256sum)
check() {
    local key
    key=build/tidy/$({ echo "$1"; cat "$2"; } | sha256sum | cut -c1-32)
    [[ -e $key ]] && return 0
    if clang-tidy --quiet -p build/release "$2" 2>/dev/null; then
        touch "$key"
    else
        echo "clang-tidy: $2"
        return 1
    fi
}
export -f check
files=("$@")
if (($# == 0)); then
    mapfile -t files < <(git ls-files 'src/*.cpp')
fi
printf '%s\n' "${files[@]}" | xargs -P "$(nproc)" -I{} bash -c 'check "$0" "$1"' "$common" {}
status=$?
((status == 0)) && echo "clang-tidy has nothing to say about ${#files[@]} files."
exit $status
