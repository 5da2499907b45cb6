#!/bin/sh
# Adds the TAV Dairy Cattle Program, where it stands now, to your desktop's menu, and makes files
# that end in .tav known to your file manager. With the argument "remove": takes both away again.
set -eu
share=$(cd "$(dirname "$0")" && pwd)
folder=$(dirname "$share")
target=${XDG_DATA_HOME:-$HOME/.local/share}
entry=$target/applications/tav-dairy.desktop
type=$target/mime/packages/tav-dairy.xml

tell_desktop() {
    if command -v update-mime-database >/dev/null; then update-mime-database "$target/mime"; fi
    if command -v update-desktop-database >/dev/null; then
        update-desktop-database "$target/applications"
    fi
}

# A path as the entry's command wants it: in quotes, with what is special in them escaped, and that
# once more for the entry itself.
command_line() {
    printf '%s\n' "$1" | sed -e 's/[\\"`$]/\\&/g' -e 's/\\/\\\\/g' -e 's/%/%%/g' -e 's/.*/"&"/'
}

if [ "${1:-}" = remove ]; then
    rm -f "$entry" "$type"
    (cd "$share/icons" && find . -type f -name 'tav-dairy.*') | while read -r icon; do
        rm -f "$target/icons/$icon"
    done
    if [ -d "$target/mime" ]; then tell_desktop; fi
    echo "The TAV Dairy Cattle Program is no longer in the menu."
    exit
fi

mkdir -p "$target/applications" "$target/mime/packages" "$target/icons"
line=$(command_line "$folder/tav-dairy")
while IFS= read -r text; do
    case $text in
        Exec=*) printf 'Exec=%s\n' "$line" ;;
        *) printf '%s\n' "$text" ;;
    esac
done <"$share/applications/tav-dairy.desktop" >"$entry"
cp "$share/mime/packages/tav-dairy.xml" "$type"
cp -R "$share/icons/." "$target/icons"
tell_desktop
echo "The TAV Dairy Cattle Program is in the menu. If you move its folder, run this again."
