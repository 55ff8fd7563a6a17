#!/bin/sh
# Runs a Windows program on a display of its own: on_display.sh RUNNER PROGRAM [ARGUMENT...]. The desktop of Wine
# belongs to the display that it was started on, so it goes with the program. The display's number is the server's
# choice, so that runs at the same time do not meet.
set -eu
if ! command -v Xvfb >/dev/null; then
  echo "Xvfb is not installed, which the display is made with" >&2
  exit 1
fi
ready=$(mktemp -u)
mkfifo "$ready"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$ready" >/dev/null 2>&1 &
server=$!
trap 'kill "$server" 2>/dev/null || true; rm -f "$ready"' EXIT
trap 'exit 143' TERM INT
read -r number <"$ready"
export DISPLAY=":$number"
unset XAUTHORITY
status=0
"$@" || status=$?
"$1" wineboot --kill || true
exit $status
