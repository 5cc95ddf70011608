#!/bin/sh
# page.sh FILE.md: the page as HTML on standard output. Headings get the anchors that links name; links to other
# pages point to their HTML.
set -eu
folder=$(dirname "$0")
cat "$folder/head.html"
cmark-gfm --extension table "$1" | sed -E '
    s|<h([1-6])>([^<]*)</h|<h\1 id="\L\2\E">\2</h|
    :blank
    s|(<h[1-6] id="[^"]*) |\1-|
    t blank
    :mark
    s|(<h[1-6] id="[^",.():]*)[,.():]|\1|
    t mark
    s|href="([A-Za-z-]+)\.md([#"])|href="\1.html\2|g'
printf '</body>\n</html>\n'
