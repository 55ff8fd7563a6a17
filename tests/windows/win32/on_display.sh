#!/bin/sh
# Runs a Windows program on a display of its own: on_display.sh RUNNER PROGRAM [ARGUMENT...]. The desktop of Wine
# belongs to the display that it was started on, so it goes with the program.
set -eu
exec xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" sh -c '
  status=0
  "$@" || status=$?
  "$1" wineboot --kill || true
  exit $status
' sh "$@"
