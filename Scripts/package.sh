#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds both packages of Quillon into build/packages: the .deb for Debian 12, and the .tar.xz of the folder
# Quillon.app, which runs from wherever it is unpacked on a desktop with X11 and glibc 2.36 or later.
#
#     Scripts/package.sh
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/packages.sh
Scripts/packages.sh --package
Scripts/build.sh release Quillon tallyrig QuillonArchive QuillonCharts QuillonNetwork QuillonIconSizes QuillonDocuments

log=build/packages.log
echo "Packing. What is said meanwhile goes to $log"
mkdir -p build/packages
# Folders must be open to all, whoever packs them.
umask 022
(cd build/release && cpack -B ../packages) >"$log" 2>&1 || {
    tail -n 40 "$log" >&2
    echo "The packages could not be made. All messages are in $log" >&2
    exit 1
}
rm -rf build/packages/_CPack_Packages
ls -l build/packages/*.deb build/packages/*.tar.xz
