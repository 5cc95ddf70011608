#!/usr/bin/env bash
# on_screen.sh COMMAND...: runs it on a virtual screen of its own, with a window manager, a session bus and the
# accessibility bus. Ends with the command's status; 77 when a needed program is missing.
set -euo pipefail

for program in Xvfb xvfb-run xauth openbox xdotool dbus-run-session; do
    command -v "$program" >/dev/null || { echo "on_screen.sh needs $program" >&2; exit 77; }
done
/usr/bin/python3 -c 'import pyatspi' 2>/dev/null || { echo "on_screen.sh needs pyatspi" >&2; exit 77; }

# Without -noreset the server would start all over when its first client, one that only asks, goes.
if [ -z "${ON_SCREEN:-}" ]; then
    export ON_SCREEN=1
    exec xvfb-run -a -s "-noreset -screen 0 ${SCREEN_SIZE:-1366x768}x24" dbus-run-session -- "$0" "$@"
fi

home=$(mktemp -d)
mkdir "$home/run" && chmod 700 "$home/run"
export HOME=$home XDG_RUNTIME_DIR=$home/run XDG_CONFIG_HOME=$home/.config QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
openbox >/dev/null 2>&1 &
manager=$!
# Before the program: one that starts first never registers.
/usr/libexec/at-spi-bus-launcher --launch-immediately >/dev/null 2>&1 &
launcher=$!
trap 'kill $manager $launcher 2>/dev/null || true; rm -rf "$home"' EXIT
for _ in $(seq 100); do
    xdotool get_num_desktops >/dev/null 2>&1 && break # the window manager answers
    sleep 0.1
done
sleep 0.3
"$@"
