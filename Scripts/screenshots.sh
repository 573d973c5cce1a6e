#!/usr/bin/env bash
# Makes the pictures of the documentation anew, from the real window in a virtual display of a fixed size.
#
#     Scripts/screenshots.sh
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/packages.sh
cmake --preset release >/dev/null
cmake --build --preset release --target Quillon

mkdir -p Docs/pictures
xvfb-run -a -s "-screen 0 1400x900x24" build/release/Sources/Quillon/Quillon \
    Examples/vereinsabend.adi --grab Docs/pictures/quillon.png
