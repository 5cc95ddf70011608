#!/usr/bin/env bash
# screenshots.sh [PROGRAM]: takes the pictures of docs/images from the real program on a virtual screen.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$(realpath "${1:-$here/../build/dorvan}")
export PYTHONPATH=$here/../tests/desktop/journey SCREEN_SIZE=1100x720 PYTHONDONTWRITEBYTECODE=1
exec "$here/../tests/desktop/journey/on_screen.sh" /usr/bin/python3 "$here/screenshots.py" \
    "$program" "$here/../samples" "$here/images"
