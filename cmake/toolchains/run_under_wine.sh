#!/bin/sh
# Runs a Windows program under Wine: bounded in time, in a prefix of its own, without the crash debugger.
# ORVENDAL_WINEPREFIX chooses the prefix, ORVENDAL_WINE_SECONDS the bound, ORVENDAL_WINE the command.
set -eu
prefix=${ORVENDAL_WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/orvendal/wine}
mkdir -p "$prefix"
export WINEPREFIX="$prefix"
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEDLLOVERRIDES="${WINEDLLOVERRIDES:-mscoree,mshtml=;winedbg.exe=d}"
# Wine 10 aborts at its start where this is set.
unset TMPDIR
exec timeout --kill-after=5 "${ORVENDAL_WINE_SECONDS:-120}" ${ORVENDAL_WINE:-wine} "$@"
