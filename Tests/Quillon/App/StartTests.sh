#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# What the program says at a terminal that has no display: StartTests.sh PROGRAM VERSION
unset DISPLAY WAYLAND_DISPLAY QT_QPA_PLATFORM HOME
program=$1
version=$2
failed=0

# Runs the program with the arguments behind STATUS and the pattern of what it says in all.
expect() {
    status=$1
    pattern=$2
    shift 2
    said=$("$program" "$@" 2>&1)
    if [ $? != "$status" ] || ! printf '%s\n' "$said" | tr '\n' '|' | grep -q "^$pattern|\$"; then
        echo "Quillon $* does not say \"$pattern\" with status $status, but: $said"
        failed=1
    fi
}

expect 0 "Quillon $version" --version
expect 0 'Aufruf: Quillon .*' a.adi --help
expect 2 'Quillon: [^|]* DISPLAY und WAYLAND_DISPLAY sind leer.' a.adi
expect 2 'Quillon: [^|]* DISPLAY und WAYLAND_DISPLAY sind leer.' -- --help
expect 2 'Quillon: [^|]* DISPLAY und WAYLAND_DISPLAY sind leer.' --style fusion --crosscheck -x
expect 2 'Quillon: Unbekannte Angabe: --foo. [^|]* ./--foo oder steht hinter -- [^|]*' a.adi --foo
DISPLAY=:987
export DISPLAY
expect 2 'Quillon: [^|]* DISPLAY=:987'
exit $failed
