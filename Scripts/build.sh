#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Configures and builds a preset, all of it or some targets. Says only what has gone wrong; the rest is in
# build/PRESET.log.
#
#     Scripts/build.sh PRESET [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=$1
shift
log=build/$preset.log

mkdir -p build
echo "Building $preset${*:+ ($*)}. What the compiler says goes to $log"
{
    cmake --preset "$preset" && cmake --build --preset "$preset" ${1:+--target "$@"}
} >"$log" 2>&1 || {
    tail -n 40 "$log" >&2
    echo "The build failed. All of its messages are in $log" >&2
    exit 1
}
