#!/usr/bin/env bash
# Replaces golden files by what the last test run wrote. Names one or more of them, such as
# files/three_records.mtx; review the difference before committing it.
set -euo pipefail
cd "$(dirname "$0")"
[ $# -gt 0 ] || { echo "usage: tests/accept-golden.sh NAME..." >&2; exit 2; }
for name in "$@"; do
    mkdir -p "$(dirname "$name")"
    cp "../build/tests/actual/$name" "$name"
    echo "accepted $name"
done
