#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds both packages of Quillon into build/packages: the .deb for Debian 12, and the .tar.xz of the folder
# Quillon.app, which runs from wherever it is unpacked on a desktop with X11 and glibc 2.36 or later. With the address
# of a manifest, https://.../updates.json, the program in the folder looks there for updates; that of the .deb never
# does, for its updates come through apt.
#
#     Scripts/package.sh [ADDRESS]
set -euo pipefail
cd "$(dirname "$0")/.."
address=${1:-}

log=build/packages.log
# Folders must be open to all, whoever packs them.
umask 022

# Builds with the address $2, which stays in the cache of the build, and packs what cpack calls $1.
pack() {
    cmake --preset release "-DQUILLON_UPDATE_MANIFEST_URL=$2" >/dev/null
    Scripts/build.sh release Quillon tallyrig QuillonArchive QuillonCharts QuillonNetwork QuillonIconSizes QuillonDocuments
    (cd build/release && cpack -G "$1" -B ../packages) >>"$log" 2>&1 || {
        tail -n 40 "$log" >&2
        echo "The packages could not be made. All messages are in $log" >&2
        exit 1
    }
}

Scripts/packages.sh
Scripts/packages.sh --package
echo "Packing. What is said meanwhile goes to $log"
mkdir -p build/packages
: >"$log"
# However it ends: what is built here later must not look there.
trap 'cmake --preset release -DQUILLON_UPDATE_MANIFEST_URL= >/dev/null' EXIT
pack TXZ "$address"
trap - EXIT
pack DEB ""
rm -rf build/packages/_CPack_Packages
ls -l build/packages/*.deb build/packages/*.tar.xz
