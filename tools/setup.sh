#!/usr/bin/env bash
# Installs what a build needs on Debian 12 and is not there yet, and says what that is. With the
# argument "tests" also what the tests need. Works as root or with sudo.
set -euo pipefail

packages=(g++ cmake ninja-build ccache libcli11-dev rapidjson-dev libsqlite3-dev
    pkg-config libpango1.0-dev fonts-liberation fonts-droid-fallback fonts-noto-core
    qt6-base-dev qt6-svg-dev)
if [[ -n ${WAYLAND_DISPLAY:-} ]]; then
    packages+=(qt6-wayland)
fi
if [[ ${1:-} == tests ]]; then
    packages+=(libgtest-dev libbenchmark-dev clang libclang-rt-14-dev clang-format poppler-utils
        dpkg-dev desktop-file-utils shared-mime-info xvfb xdotool openbox imagemagick)
fi

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
    [[ $status == "install ok installed" ]] || missing+=("$package")
done
if ((${#missing[@]} == 0)); then
    exit 0
fi

echo "Installing: ${missing[*]}"
root=()
if [[ $(id -u) != 0 ]]; then
    root=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${root[@]}" apt-get update -qq
"${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
