#!/usr/bin/env bash
# The system's request to end is followed at once, says so in the exit status, and leaves the files as they
# were: signals_test.sh PROGRAMS SIMULATION
set -euo pipefail

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$1/tav-dairy" "$folder/"
cp "$2" "$folder/TAV Dairy Cattle Default Simulation Data File.tav"
before=$(cd "$folder" && sha256sum -- *)

for signal in TERM INT HUP; do
    # A program started in the background by a script would ignore an interrupt.
    QT_QPA_PLATFORM=offscreen env --default-signal=INT "$folder/tav-dairy" 2>/dev/null &
    program=$!
    sleep 1.5
    kill -s "$signal" "$program"
    status=0
    wait "$program" || status=$?
    expected=$((128 + $(kill -l "$signal")))
    if [[ $status != "$expected" ]]; then
        echo "SIG$signal ended the program with $status, not $expected"
        exit 1
    fi
done
[[ $(cd "$folder" && sha256sum -- *) == "$before" ]] || { echo "files have changed"; exit 1; }
