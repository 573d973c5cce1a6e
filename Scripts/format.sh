#!/usr/bin/env bash
# Puts the C++ sources into the shape that .clang-format describes; with --check only says which are not in it.
#
#     Scripts/format.sh [--check]
set -euo pipefail
cd "$(dirname "$0")/.."

how=(-i)
if [ "${1:-}" = --check ]; then
    how=(--dry-run -Werror)
fi
git ls-files -z 'Sources/*.cpp' 'Sources/*.h' 'Tests/*.cpp' 'Tests/*.h' 'Benchmarks/*.cpp' 'Benchmarks/*.h' |
    xargs -0 clang-format "${how[@]}"
