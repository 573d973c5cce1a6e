#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Quillon and its command-line tool and opens the window on the given log or, without one, on an example.
# Where there is no display, the window opens in a virtual one and a picture of it is left behind.
#
#     Scripts/run.sh [FILE]
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)

"$top/Scripts/packages.sh"
"$top/Scripts/build.sh" release Quillon tallyrig

if [ $# = 0 ]; then
    set -- "$top/Examples/jahreslog.adi"
fi
quillon=$top/build/release/bin/Quillon
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec "$quillon" "$@"
fi
picture=$top/build/quillon.png
xvfb-run -a -s "-screen 0 1400x900x24" "$quillon" "$@" --grab "$picture"
echo "There is no display here. A picture of the window is in $picture"
