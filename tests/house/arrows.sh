#!/usr/bin/env bash
# Includes between the rooms of src/ point downwards only, and no room but painting and desktop knows the toolkit.
set -euo pipefail
cd "$(dirname "$0")/../../src"

declare -A level=([numbers]=0 [platform]=1 [session]=2 [sheet]=3 [files]=4 [distance]=4 [making]=5 [view]=5
    [import]=6 [export]=6 [print]=6 [program]=7 [painting]=7 [cli]=8 [desktop]=8)
failed=0
complain() { echo "$*" >&2; failed=1; }

for room in */; do
    room=${room%/}
    [ -n "${level[$room]:-}" ] || { complain "src/$room has no place among the rooms"; continue; }
    while IFS=: read -r file line included; do
        target=${included#*\"}
        target=${target%%/*}
        [ -n "${level[$target]:-}" ] || { complain "$file:$line includes outside the rooms: $included"; continue; }
        [ "${level[$target]}" -le "${level[$room]}" ] || complain "$file:$line points upwards: $included"
        if [ "$target" != "$room" ] && [ "${level[$room]}" = 8 ] && [ "${level[$target]}" = 8 ]; then
            complain "$file:$line: one face knows the other: $included"
        fi
    done < <(grep -rnE '^#include "' --include='*.h' --include='*.cpp' "$room" || true)
    if [ "$room" != desktop ] && [ "$room" != painting ] && grep -rnE '#include <Q[A-Z]' --include='*.h' --include='*.cpp' "$room" >&2; then
        complain "src/$room knows the toolkit"
    fi
done
exit $failed
