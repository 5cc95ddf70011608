#!/usr/bin/env bash
# Includes between the rooms point strictly upwards in the list of src/rooms.txt, the toolkit is known to painting
# and desktop alone (the build sees to it that painting links no widgets), and each room has tests of its own name.
set -euo pipefail
cd "$(dirname "$0")/../.."

declare -A line_of
number=0
while read -r -a rooms; do
    number=$((number + 1))
    for room in "${rooms[@]}"; do line_of[$room]=$number; done
done < <(grep -v '^#' src/rooms.txt)

failed=0
complain() { echo "$*" >&2; failed=1; }

check_includes() {
    local room=$1 file line included target
    while IFS=: read -r file line included; do
        target=${included#*\"}
        target=${target%%/*}
        [ "$target" != "$room" ] || continue
        if [ -z "${line_of[$target]:-}" ]; then
            complain "$file:$line includes from outside the rooms: $included"
        elif [ "${line_of[$target]}" -ge "${line_of[$room]}" ]; then
            complain "$file:$line: $room must not know $target: $included"
        fi
    done < <(grep -rnE '^ *#include "' --include='*.h' --include='*.cpp' "src/$room" || true)
}

check_toolkit() {
    local room=$1
    case $room in
    desktop) ;;
    painting)
        ! grep -rnE '#include <(Q[A-Za-z]*(Widget|Window|Dialog|BoxLayout|GridLayout|FormLayout)\b|QtWidgets)' "src/$room" >&2 ||
            complain "src/$room knows widgets" ;;
    *)
        ! grep -rnE '#include <Q[A-Z]' --include='*.h' --include='*.cpp' "src/$room" >&2 ||
            complain "src/$room knows the toolkit" ;;
    esac
}

for folder in src/*/; do
    room=$(basename "$folder")
    if [ -z "${line_of[$room]:-}" ]; then
        complain "src/$room has no place in src/rooms.txt"
        continue
    fi
    check_includes "$room"
    check_toolkit "$room"
    [ -d "tests/$room" ] || complain "src/$room has no tests/$room"
done
for folder in tests/*/; do
    room=$(basename "$folder")
    case $room in
    house | support) ;;
    *) [ -n "${line_of[$room]:-}" ] || complain "tests/$room mirrors no room" ;;
    esac
done
exit $failed
