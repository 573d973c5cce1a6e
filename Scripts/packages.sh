#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages that Quillon needs to be built, run and tested; with --format those for the shape of
# the sources instead, with --fuzz those for fuzzing, with --package what packing needs besides. Does nothing, and
# needs no rights, where all are there. With --list first, only names them.
#
#     Scripts/packages.sh [--list] [--format | --fuzz | --package]
set -euo pipefail

onlyList=
if [ "${1:-}" = --list ]; then
    onlyList=yes
    shift
fi
case "${1:-}" in
--format)
    packages=(clang-format-14)
    ;;
--fuzz)
    packages=(clang libclang-rt-14-dev cmake ninja-build ccache libicu-dev libexpat1-dev libfmt-dev libtbb-dev)
    ;;
--package)
    packages=(dpkg-dev file patchelf xz-utils)
    ;;
*)
    packages=(
        # Tools to build with.
        g++ cmake ninja-build ccache
        # Libraries of Tallyrig and its command-line tool.
        libicu-dev libexpat1-dev libfmt-dev libtbb-dev libcli11-dev nlohmann-json3-dev
        # What the application is made of, and what it shows: German dialogs, icons, a font.
        qt6-base-dev qt6-svg-dev qt6-translations-l10n breeze-icon-theme fonts-dejavu-core
        # What unpacks updates.
        libarchive-dev
        # What paints charts.
        libqcustomplot-dev
        # Tests and benchmarks.
        libgtest-dev libbenchmark-dev python3-minimal
        # What looks at menu entry, types of files and the description for software centres.
        desktop-file-utils shared-mime-info appstream
        # A display for machines without one.
        xvfb xauth
        # What a screen reader reads windows with, a bus for that, and what hands the keyboard to a window.
        at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi openbox
    )
    ;;
esac

if [ -n "$onlyList" ]; then
    echo "${packages[@]}"
    exit 0
fi
if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian system. The packages needed are, by their Debian names:" "${packages[@]}" >&2
    exit 0
fi

missing=()
for package in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$package")
done
if [ ${#missing[@]} = 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" != 0 ]; then
    # With somebody at the terminal sudo may ask for a password, otherwise it has to do without.
    if command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
        as_root=(sudo)
    else
        {
            echo "Packages are missing, and to install them takes the rights of root. An administrator does it with"
            echo "    apt-get install --no-install-recommends ${missing[*]}"
        } >&2
        exit 1
    fi
fi

log=$(mktemp -t quillon-packages-XXXXXX.log)
echo "Installing ${missing[*]}. What apt says goes to $log"
{
    "${as_root[@]}" apt-get update -qq &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}"
} >"$log" 2>&1 || {
    tail -n 20 "$log" >&2
    echo "The packages could not be installed. All messages are in $log" >&2
    exit 1
}
