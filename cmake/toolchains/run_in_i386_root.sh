#!/bin/sh
# Runs the 32-bit Wine of an i386 root: the command that run_under_wine.sh is to use for 32-bit programs on a
# machine whose own Wine has 64 bits only. Everything is mounted for this one run and for it alone, so that
# nothing is left in the root. Needs the rights to mount and to change the root.
# The root, in ORVENDAL_I386_ROOT, is made by scripts/i386_root, or by hand with
#   debootstrap --arch=i386 --variant=minbase --include=wine32,wine,fonts-urw-base35 SUITE FOLDER
# ORVENDAL_SHARED_FOLDERS are seen inside under their own paths, the build and the sources among them.
set -eu
root=${ORVENDAL_I386_ROOT:?}
export ORVENDAL_WINE_FOLDER="$PWD"
exec unshare --mount --propagation private sh -eu -c '
  root=$1
  shift
  mount -t proc proc "$root/proc"
  display=${XAUTHORITY:-/tmp/.X11-unix/none}
  for folder in $ORVENDAL_SHARED_FOLDERS "$WINEPREFIX" /tmp/.X11-unix "${display%/*}"; do
    if [ -d "$folder" ]; then
      mkdir -p "$root$folder"
      mount --bind "$folder" "$root$folder"
    fi
  done
  exec chroot "$root" sh -c '\''cd "$ORVENDAL_WINE_FOLDER" && exec wine "$@"'\'' wine "$@"
' sh "$root" "$@"
