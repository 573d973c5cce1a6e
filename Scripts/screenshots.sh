#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the pictures of the documentation anew, from the real window.
#
#     Scripts/screenshots.sh
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/packages.sh
Scripts/build.sh release Quillon

# The status bar shows where the log lies, which is to be the same on every machine.
folder=/var/tmp/Logbuch
mkdir -p Docs/pictures "$folder"
cp -r Examples/befunde.adi Examples/jahreslog.adi Examples/maerzcontest.adi Examples/crosscheck \
    Examples/schaden.adi Examples/unterwegs.adi Examples/vereinsabend*.adi "$folder"
trap 'rm -r "$folder"' EXIT

QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/befunde.adi" \
    --grab Docs/pictures/quillon.png --grab-size 1280x800 --grab-check --grab-select 15
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/jahreslog.adi" \
    --grab Docs/pictures/statistics.png --grab-size 1280x800 --grab-mode stats
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/maerzcontest.adi" \
    --grab Docs/pictures/contest.png --grab-size 1280x720 --grab-contest darcUKW
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon --crosscheck "$folder/crosscheck" \
    --grab Docs/pictures/crosscheck.png --grab-size 1280x800 --grab-contest darcUKW
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/vereinsabend.adi" \
    --grab Docs/pictures/compare.png --grab-size 1280x640 --grab-compare "$folder/vereinsabend-abschrift.adi"
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/unterwegs.adi" \
    --grab Docs/pictures/outdoor.png --grab-size 1280x800 --grab-outdoor POTA --grab-select 4
QT_QPA_PLATFORM=offscreen build/release/bin/Quillon "$folder/schaden.adi" \
    --grab Docs/pictures/reading.png --grab-size 1280x640 --grab-reading
