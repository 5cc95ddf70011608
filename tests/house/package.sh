#!/usr/bin/env bash
# package.sh BUILD: the package is made, and lintian, man and appstreamcli say nothing about it; all that the guide
# links to is there.
set -euo pipefail
build=$1
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
failed=0
complain() { echo "$*" >&2; failed=1; }

(cd "$build" && cpack -B "$folder/made" >"$folder/log" 2>&1) || { cat "$folder/log" >&2; exit 1; }
package=$(echo "$folder"/made/*.deb)
said=$(lintian --tag-display-limit 0 --allow-root "$package" 2>&1) || true
[ -z "$said" ] || complain "$said"

dpkg -x "$package" "$folder/root"
cd "$folder/root/usr/share"
while read -r page; do
    said=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$said" ] || complain "$page: $said"
done < <(find man -name '*.gz')
for program in "$folder"/root/usr/bin/*; do
    [ -e "man/man1/${program##*/}.1.gz" ] || complain "${program##*/} has no manual page"
done
appstreamcli validate --no-net metainfo/*.xml || complain "the metainfo is not valid"

cd doc/dorvan/guide
while IFS=: read -r page link; do
    target=${link#*\"}
    anchor=${target#*#}
    file=${target%%#*}
    [ -e "${file:-$page}" ] || complain "$page links to $file, which is not there"
    [ "$anchor" = "$target" ] || grep -q "id=\"$anchor\"" "${file:-$page}" || complain "$page: no anchor $anchor"
done < <(grep -oE '(href|src)="[^"]+' ./*.html | grep -v '"http')
exit $failed
