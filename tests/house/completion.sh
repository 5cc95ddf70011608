#!/usr/bin/env bash
# completion.sh PROGRAM: what the shell offers for half a command line.
set -euo pipefail
cd "$(dirname "$0")/../.."
program=$1
. resources/package/dorvan-cli.bash
failed=0

# offers WANTED WORD...: the words of the line, the last one being typed.
offers() {
    local wanted=$1
    shift
    COMP_WORDS=("$program" "$@")
    COMP_CWORD=$#
    _dorvan_cli || true
    [ "${COMPREPLY[*]}" = "$wanted" ] || { echo "$*: offers '${COMPREPLY[*]}', not '$wanted'" >&2; failed=1; }
}

offers "diagram" dia
offers "--measure" diagram --mea
offers "dots" diagram iris.mdt out.dgr --type d
offers "best" diagram iris.mdt out.dgr --order b
offers "best" order iris.dgr out.dgr --order b
offers "samples" info samp
offers "" diagram --seed 1
for command in $(_dorvan_cli_subcommands "$("$program" --help)"); do
    offers "$command" "$command"
    "$program" "$command" --help >/dev/null || failed=1
done
exit $failed
