#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds and runs all tests: everything in the preset release, then library and tool once more under
# AddressSanitizer and UndefinedBehaviorSanitizer, with a replay of the examples, and of the logs below the folder
# QUILLON_SAMPLES if that is set, through the fuzz targets; last, what uses threads under ThreadSanitizer. Also
# looks whether the sources are formatted. Fails if any of it did.
#
#     Scripts/test.sh
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/packages.sh
CTEST_PARALLEL_LEVEL=$(nproc)
export QT_QPA_PLATFORM=offscreen CTEST_PARALLEL_LEVEL

# Whatever fails, the rest is run as well, so that one look shows everything.
summary=
failed=0
report() {
    summary+=$(printf '%-8s %s' "$1" "$2")$'\n'
}

if Scripts/format.sh --check; then
    report format "all sources are in shape"
else
    report format "FAILED"
    failed=1
fi

for preset in release asan tsan; do
    if ! Scripts/build.sh "$preset"; then
        report "$preset" "FAILED to build"
        failed=1
        continue
    fi
    log=build/$preset-tests.log
    echo "Testing $preset"
    ctest --preset "$preset" --no-tests=error >"$log" 2>&1 || failed=1
    # Of the hundreds that pass nobody need read.
    grep -vE '^ *Start +[0-9]+: |^ *[0-9]+/[0-9]+ .* Passed +[0-9.]+ sec$' "$log" || true
    report "$preset" "$(grep 'tests passed' "$log" || echo FAILED), all of it in $log"
done

echo "== summary"
printf '%s' "$summary"
exit "$failed"
