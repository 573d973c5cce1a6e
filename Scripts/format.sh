#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Puts the C++ sources into the shape that .clang-format describes, and the line that names the licence into every
# source; with --check only says which lack it. clang-format is that of LLVM 14, for another one has other tastes.
#
#     Scripts/format.sh [--check]
set -euo pipefail
cd "$(dirname "$0")/.."

how=(-i)
if [ "${1:-}" = --check ]; then
    how=(--dry-run -Werror)
fi
Scripts/packages.sh --format
Scripts/licence-lines.py ${1:+"$1"}
find Sources Tests Benchmarks \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format-14 "${how[@]}"
