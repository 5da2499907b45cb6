#!/usr/bin/env bash
# Builds a preset: tools/build.sh PRESET [TARGET...]. Quiet unless something goes wrong.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
shift

# Another checkout of the same code finds what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

log=$(mktemp)
trap 'rm -f "$log"' EXIT
targets=()
if (($# > 0)); then
    targets=(--target "$@")
fi
if ! { cmake --preset "$preset" && cmake --build --preset "$preset" "${targets[@]}"; } >"$log" 2>&1; then
    cat "$log"
    echo "The build of $preset failed."
    exit 1
fi
