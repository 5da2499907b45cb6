#!/usr/bin/env bash
# day_under_xvfb.sh BIN: a day with the program as users have it, in a window of a real X server, by keys
# alone; then a second start. BIN is the folder in which the program stands. Exit status 77: skipped.
# With PICTURES set to a folder, the screen of each step is kept there (needs imagemagick).
set -euo pipefail
bin=$1
for tool in Xvfb xdotool; do
    if ! command -v "$tool" >/dev/null; then
        echo "SKIPPED: $tool is not installed"
        exit 77
    fi
done

work=$(mktemp -d)
server='' manager='' program=''
cleanup() {
    for process in "$program" "$manager" "$server"; do
        if [[ -n $process ]]; then kill "$process" 2>/dev/null || true; fi
    done
    rm -rf "$work"
}
trap cleanup EXIT

picture() {
    if [[ -n ${PICTURES:-} ]]; then import -window root "$PICTURES/$1.png" || true; fi
}

fail() {
    echo "FAILED: $*" >&2
    echo "Windows on the screen:" >&2
    for window in $(xdotool search --onlyvisible --name '.' 2>/dev/null); do
        echo "  $(xdotool getwindowname "$window")" >&2
    done
    picture failed
    exit 1
}

# wait_for SECONDS COMMAND...: until it succeeds
wait_for() {
    local ends=$((SECONDS + $1))
    shift
    until "$@" >/dev/null 2>&1; do
        ((SECONDS < ends)) || return 1
        sleep 0.05
    done
}

active_is() { [[ $(xdotool getactivewindow getwindowname) == *"$1"* ]]; }

# The window with that in its title has the keyboard.
at() {
    wait_for 15 active_is "$1" || fail "no window \"$1\" in front"
    sleep 0.25
    step=$((step + 1))
    picture "$(printf '%02d' "$step") ${1%%:*}"
}
step=0

press() { xdotool key --delay 40 "$@" && sleep 0.15; }
enter() { xdotool type --delay 15 -- "$1" && sleep 0.1; }
# A path in a file dialog, in the place of the one that is proposed.
choose() {
    press ctrl+a
    enter "$1"
    press Return
}
saved() { wait_for 15 test -s "$1" || fail "no file $1"; }
expect_in() { grep -qF -- "$2" "$1" || fail "\"$2\" is not in $1"; }

# A display of its own, on the first free number.
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1366x768x24 -nolisten tcp -noreset 3>"$work/number" 2>"$work/server" &
server=$!
read -r number <"$work/number"
export DISPLAY=:$number QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8 HOME=$work
unset WAYLAND_DISPLAY QT_SCALE_FACTOR GTK_THEME
if command -v openbox >/dev/null; then
    openbox >/dev/null 2>&1 &
    manager=$!
    sleep 0.5
fi

mkdir "$work/program" "$work/files"
cp "$bin/tav-dairy" "$bin"/TAV*.mdb "$bin"/TAV*.HLP "$work/program"
settings="$work/program/TAV Dairy Cattle Program Settings Data File"
default="$work/program/TAV Dairy Cattle Default Simulation Data File.tav"
main="TAV Feeding Standards for Milking Herds"

start() {
    (cd "$work/files" && exec "$work/program/tav-dairy" 2>"$work/errors") &
    program=$!
    at "TAV Dairy Cattle Program"
    press alt+a
}

# Both questions on the way out.
leave() {
    press alt+f x
    at "Exit Program?"
    press alt+y
    at "Save Defaults Before Exiting?"
    press alt+y
    local status=0
    wait "$program" || status=$?
    program=
    [[ $status == 0 ]] || fail "exit status $status: $(cat "$work/errors")"
}

start
at "Default Program Settings Data File Not Found"
press Return
at "Default Simulation Data File Not Found"
press Return
at "$main"

# Pounds, on the settings; then her weight and milk, each the first field behind the tabs' others.
press alt+g i s
at "$main"
press Tab Down
press alt+g i d
at "$main"
press Tab Tab Tab
enter "1400"
press Tab

press alt+g f
at "$main"
press alt+a
at "Add Feeds to Ration"
press Down space Down space Tab Down space Return
at "$main"

# The ration: down the quantities, then the estimate.
press alt+g r
at "$main"
press ctrl+Home Down
enter "20"
press Return
enter "15"
press Return
enter "12.5"
press Return alt+s
sleep 0.3
press alt+e
sleep 0.3

press ctrl+shift+s
at "Save"
choose "$work/files/Xvfb day"
at "Save File"
press Return
saved "$work/files/Xvfb day.tav"
at "Xvfb day"

# All reports on the screen and, where there is no printer, into a file.
press alt+g p
at "$main"
for _ in 1 2 3 4 5; do press space Down; done
press alt+v
sleep 0.7
picture "preview"
press alt+p
if wait_for 5 active_is "Save Report as PDF"; then
    choose "$work/files/day.pdf"
    saved "$work/files/day.pdf"
    if command -v pdftotext >/dev/null; then
        pdftotext -layout "$work/files/day.pdf" "$work/day.txt"
        expect_in "$work/day.txt" "(lbs/day)"
        expect_in "$work/day.txt" "1400 lbs"
    fi
else
    press Escape # a printer's dialog
fi
at "$main"

press alt+g Up Return
at "Welcome to the Batch File Utility!"
press Return
at "Batch File Utility"
press Tab Tab
press Home space Tab space
press Tab Tab Tab Tab space
at "Save"
choose "$work/files/herd.csv"
at "Batch Files Run"
press Return
saved "$work/files/herd.csv"
expect_in "$work/files/herd.csv" '"Xvfb day.tav","Lactating Cow"'
at "$main"

# What is kept is asked for at the end.
press alt+f Up Up Up Return # "Auto-Save Default Data On Exit"
leave
[[ $(wc -l <"$settings") == 20 ]] || fail "the settings have $(wc -l <"$settings") lines"
saved "$default"
expect_in "$default" "Lactating Cow"

# The next morning there is nothing to tell, and the cow is there.
start
at "Default Simulation"
press alt+g r
at "Default Simulation"
press ctrl+shift+s
at "Save"
choose "$work/files/again"
at "Save File"
press Return
at "again"
leave
cmp "$work/files/again.tav" "$work/program/TAV Dairy Cattle Default Simulation Data File.tav" ||
    fail "the simulation of the second day is another one"
[[ ! -s $work/errors ]] || fail "on standard error: $(cat "$work/errors")"
echo "The day went well."
