#!/usr/bin/env bash
# Builds and runs all tests: everything in the preset release, then the library and the tool once more under
# AddressSanitizer and UndefinedBehaviorSanitizer. Fails if any test failed.
#
#     Scripts/test.sh
set -euo pipefail
cd "$(dirname "$0")/.."

Scripts/packages.sh
jobs=$(nproc)
export QT_QPA_PLATFORM=offscreen
export CMAKE_BUILD_PARALLEL_LEVEL=$jobs
export CTEST_PARALLEL_LEVEL=$jobs

summary=
failed=0
for preset in release asan; do
    echo "== $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    # The other preset is run even if this one fails, so that one look shows everything.
    ctest --preset "$preset" --no-tests=error 2>&1 | tee "build/$preset/ctest.txt" || failed=1
    summary+=$(printf '%-8s %s' "$preset" "$(grep 'tests passed' "build/$preset/ctest.txt" || echo 'no tests ran')")$'\n'
done

echo "== summary"
printf '%s' "$summary"
exit "$failed"
