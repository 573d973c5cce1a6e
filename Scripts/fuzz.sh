#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the fuzz targets and runs each for some seconds, 60 if nothing is said. They start from the examples, from
# the logs below the folder QUILLON_SAMPLES if that is set, and from what earlier runs have kept in build/fuzz/corpus.
# An input that breaks something is left in build/fuzz/findings.
#
#     Scripts/fuzz.sh [SECONDS]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}

Scripts/packages.sh --fuzz
Scripts/build.sh fuzz

mkdir -p build/fuzz/seeds build/fuzz/findings
# Long logs say nothing that their first QSOs do not, and slow each run down.
find Examples ${QUILLON_SAMPLES:+"$QUILLON_SAMPLES"} -type f | while read -r log; do
    head -c 4096 "$log" >"build/fuzz/seeds/$(echo "$log" | tr / _)"
done

failed=0
for target in build/fuzz/bin/*Fuzzer; do
    name=$(basename "$target")
    echo "== $name"
    mkdir -p "build/fuzz/corpus/$name"
    dictionary=()
    if [ -f "Tests/Fuzz/$name.dict" ]; then
        dictionary=("-dict=Tests/Fuzz/$name.dict")
    fi
    "$target" "${dictionary[@]}" -max_total_time="$seconds" -max_len=4096 -timeout=10 -print_final_stats=1 -verbosity=0 \
        -artifact_prefix=build/fuzz/findings/ "build/fuzz/corpus/$name" build/fuzz/seeds || failed=1
done
exit "$failed"
