#!/usr/bin/env bash
# Measures how fast the desktop program starts and answers, on a display of its own (Xvfb):
# tools/bench_desktop.sh [BUILD], by default build/release. A figure that misses its target is marked.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
command -v Xvfb >/dev/null || { echo "Xvfb is not installed (package xvfb)"; exit 1; }
if [[ $# == 0 ]]; then
    tools/build.sh release desktop_benchmark bare_window
else
    cmake --build "$build" --target desktop_benchmark bare_window >/dev/null
fi

work=$(mktemp -d)
server=
cleanup() {
    if [[ -n $server ]]; then kill "$server" 2>/dev/null || true; fi
    rm -rf "$work"
}
trap cleanup EXIT
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset 3>"$work/number" 2>/dev/null &
server=$!
read -r number <"$work/number"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
"$build/bin/desktop_benchmark"
