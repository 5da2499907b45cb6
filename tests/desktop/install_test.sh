#!/usr/bin/env bash
# install_test.sh BUILD CMAKE CPACK: the program folder runs wherever it is put and whoever may write to
# it, and the packages hold it. Needs no display and changes nothing outside of a temporary folder.
set -euo pipefail
build=$1 cmake=$2 cpack=$3

work=$(mktemp -d)
chmod 755 "$work"
started=
cleanup() {
    if [[ -n $started ]]; then kill "$started" 2>/dev/null || true; fi
    rm -rf "$work"
}
trap cleanup EXIT
umask 022
export QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=$work HOME=$work/nobody
library="TAV Dairy Cattle Program - Feed Library.mdb"

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# expect_lines WHAT EXPECTED FOUND, in any order
expect_lines() {
    if ! diff <(sort <<<"$2") <(sort <<<"$3"); then fail "$1: expected (<) and found (>)"; fi
}

contents() { (cd "$1" && find . -mindepth 1 -maxdepth 1 -printf '%f\n'); }

program_files="LICENSE
README.txt
Simulation Files
$library
TAV Dairy Cattle Program Help.HLP
Version.txt
share
tav
tav-dairy"

# What a desktop shows of the program stands where it looks for it.
check_shares() {
    local file
    for file in applications/tav-dairy.desktop mime/packages/tav-dairy.xml \
        icons/hicolor/scalable/apps/tav-dairy.svg icons/hicolor/{16x16,48x48,256x256}/apps/tav-dairy.png; do
        [[ -s $1/share/$file ]] || fail "$1/share lacks $file"
    done
}

computes() { (cd / && "$1/tav" compute --json "$1/Simulation Files/Dry Cow.tav") | grep '"AnimalType"' >/dev/null; }

# The desktop program is still there after a moment.
starts() {
    local status=0
    (cd / && timeout 4 "$1/tav-dairy") 2>"$work/errors" || status=$?
    [[ $status == 124 ]] || fail "tav-dairy in $1 ended: $status $(cat "$work/errors")"
}

check_folder() {
    expect_lines "contents of $1" "$program_files" "$(contents "$1")"
    check_shares "$1"
    [[ $(find "$1/Simulation Files" -name '*.tav' | wc -l) == 10 ]] || fail "sample simulations"
    [[ $("$1/tav" feeds list | wc -l) -gt 50 ]] || fail "feed library in $1"
    computes "$1" || fail "tav computes nothing in $1"
    starts "$1"
}

test_folder() {
    "$cmake" --install "$build" --prefix "$work/installed" >/dev/null
    mv "$work/installed" "$work/moved to another place"
    check_folder "$work/moved to another place"
}

# as_user COMMAND...: as somebody who may not write to what this test has made.
as_user() {
    if [[ $(id -u) == 0 ]]; then
        setpriv --reuid=65534 --regid=65534 --clear-groups env HOME="$home" XDG_CONFIG_HOME= "$@"
    else
        env HOME="$home" XDG_CONFIG_HOME= "$@"
    fi
}

# The process that runs a program, once it is there.
process_of() {
    local link turn
    for turn in {1..50}; do
        for link in /proc/[0-9]*/exe; do
            if [[ $(readlink "$link") == "$1" ]]; then
                basename "$(dirname "$link")"
                return
            fi
        done
        sleep 0.1
    done
    fail "nobody has started $1"
}

# Where the program can't save, the user's own copy is started, of the same version.
test_own_copy() {
    local installed="$work/for all users" home="$work/home" own="$work/home/TAV Dairy Cattle Program"
    cp -R "$work/moved to another place" "$installed"
    echo "private" >"$installed/TAV Dairy Cattle Program Settings Data File"
    chmod 600 "$installed/TAV Dairy Cattle Program Settings Data File"
    mkdir -p "$own"
    cp "$installed/tav-dairy" "$own"
    echo 1.1.0 >"$own/Version.txt"
    echo "own feeds" >"$own/$library"
    if [[ $(id -u) == 0 ]]; then chown -R 65534:65534 "$home"; else chmod a-w "$installed"; fi

    as_user timeout 20 "$installed/tav-dairy" || fail "the installed program did not hand over"
    started=$(process_of "$own/tav-dairy")
    kill "$started"
    started=
    cmp "$own/Version.txt" "$installed/Version.txt" || fail "the copy is not brought up to date"
    [[ $(cat "$own/$library") == "own feeds" ]] || fail "the user's feeds are lost"
    [[ -s "$own/Simulation Files/Dry Cow.tav" ]] || fail "the copy lacks the samples"
    chmod u+w "$installed"
}

test_menu() {
    local folder="$work/moved to another place" data="$work/data" entry
    entry=$data/applications/tav-dairy.desktop
    XDG_DATA_HOME=$data "$folder/share/add-to-menu.sh" >/dev/null 2>&1 || fail "add-to-menu.sh"
    grep -qxF "Exec=\"$folder/tav-dairy\"" "$entry" || fail "the entry starts $(grep Exec= "$entry")"
    [[ -s $data/icons/hicolor/48x48/apps/tav-dairy.png ]] || fail "the menu has no icon"
    XDG_DATA_HOME=$data "$folder/share/add-to-menu.sh" remove >/dev/null 2>&1 || fail "add-to-menu.sh remove"
    [[ -z $(find "$data" -name '*tav-dairy*') ]] || fail "something is left of the menu's entry"
}

# The desktop's own tools take the entry and the type of the files as they stand.
test_desktop_files() {
    local share="$work/moved to another place/share" mime=$work/mime
    if command -v desktop-file-validate >/dev/null; then
        desktop-file-validate "$share/applications/tav-dairy.desktop" || fail "tav-dairy.desktop"
    fi
    if command -v update-mime-database >/dev/null; then
        mkdir -p "$mime/packages"
        cp "$share/mime/packages/tav-dairy.xml" "$mime/packages"
        update-mime-database "$mime" || fail "tav-dairy.xml"
        grep -qF 'application/x-tav-simulation:*.tav' "$mime/globs2" || fail "*.tav has no type"
    fi
}

package() {
    # Whatever the builder's habits are, everybody can read the package.
    (umask 077 && "$cpack" --config "$build/CPackConfig.cmake" -G "$1" -B "$work/$1") >"$work/log" 2>&1 ||
        fail "cpack -G $1: $(cat "$work/log")"
}

test_archive() {
    package TGZ
    mkdir "$work/unpacked"
    tar -xzf "$work"/TGZ/*.tar.gz -C "$work/unpacked"
    [[ $(contents "$work/unpacked" | wc -l) == 1 ]] || fail "the archive is not one folder"
    check_folder "$work/unpacked/$(contents "$work/unpacked")"
}

test_debian_package() {
    package DEB
    local deb root=$work/root field
    deb=$(echo "$work"/DEB/*.deb)
    dpkg-deb -x "$deb" "$root"
    expect_lines "the system's folders in the package" $'opt\nusr' "$(contents "$root")"
    check_folder "$root/opt/tav-dairy"
    check_shares "$root/usr"
    [[ -s $root/usr/share/doc/tav-dairy/copyright ]] || fail "copyright"
    for program in tav tav-dairy; do
        [[ $(readlink "$root/usr/bin/$program") == "/opt/tav-dairy/$program" ]] || fail "/usr/bin/$program"
    done
    [[ -z $(find "$root" -perm /022 ! -type l) ]] || fail "others may write: $(find "$root" -perm /022 ! -type l)"
    [[ -z $(find "$root" ! -perm -444) ]] || fail "not all can read: $(find "$root" ! -perm -444)"
    for field in Maintainer Description Section Installed-Size; do
        [[ -n $(dpkg-deb -f "$deb" $field) ]] || fail "the package has no $field"
    done
    for field in libc6 libqt6widgets6 libqt6svg6 qt6-qpa-plugins libsqlite3-0 fonts-liberation; do
        grep -qw "$field" <<<"$(dpkg-deb -f "$deb" Depends)" || fail "the package doesn't depend on $field"
    done
}

test_folder
test_own_copy
test_menu
test_desktop_files
if [[ -x $cpack ]]; then
    test_archive
    if command -v dpkg-deb >/dev/null && command -v dpkg-shlibdeps >/dev/null; then test_debian_package; fi
fi
echo "The program folder and its packages are as they should be."
