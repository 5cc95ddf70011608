#!/usr/bin/env bash
# The names in the headers of the core keep the rule of .clang-tidy. Skipped where clang-tidy is not installed.
set -euo pipefail
command -v clang-tidy > /dev/null || exit 77
cd "$(dirname "$0")/../.."

source=$(mktemp --suffix=.cpp)
trap 'rm -f "$source"' EXIT
find src -name '*.h' -not -path 'src/desktop/*' -not -path 'src/painting/*' -printf '#include "%P"\n' | sort > "$source"
clang-tidy --quiet --checks='-*,readability-identifier-naming' --warnings-as-errors='*' --header-filter='src/.*' \
    --config-file=.clang-tidy "$source" -- -std=c++20 -Isrc -DFMT_HEADER_ONLY \
    -DDORVAN_VERSION_MAJOR=0 -DDORVAN_VERSION_MINOR=0 -DDORVAN_VERSION_REVISION=0 2> /dev/null
