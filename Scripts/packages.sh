#!/usr/bin/env bash
# Installs the Debian packages that Quillon needs to be built, run and tested; with --fuzz also those for fuzzing.
# Does nothing, and needs no rights, where all of them are there.
#
#     Scripts/packages.sh [--fuzz]
set -euo pipefail

packages=(
    # Tools to build with.
    g++ cmake ninja-build ccache pkg-config
    # Libraries of Tallyrig and its command-line tool.
    libicu-dev libexpat1-dev libfmt-dev libcli11-dev nlohmann-json3-dev
    # What the application is made of, and what it shows: German dialogs, icons, a font.
    qt6-base-dev qt6-charts-dev qt6-svg-dev libgl-dev qt6-translations-l10n breeze-icon-theme fonts-dejavu-core
    # Tests and benchmarks.
    libgtest-dev libbenchmark-dev python3-minimal
    # A display for machines without one.
    xvfb xauth
)
if [ "${1:-}" = --fuzz ]; then
    packages+=(clang libclang-rt-14-dev)
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
        echo "These packages are missing and cannot be installed without root's rights:" "${missing[@]}" >&2
        exit 1
    fi
fi

echo "Installing" "${missing[@]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
