#!/usr/bin/env bash
# The picture that scripts/run saves without a display: one file for each store.
set -euo pipefail
source "$1/scripts/picture.sh"
failed=0
expect() {  # WHAT FIRST SECOND: same or different
  local same=different
  [[ "$2" == "$3" ]] && same=same
  [[ "$same" == "$1" ]] && return
  echo "expected $1 files: $2 and $3" >&2
  failed=1
}

cd "$(mktemp -d)"
trap 'rm -rf "$PWD"' EXIT
mkdir folder
usual="$(picture_for /program --sucursal 03)"
one="$(picture_for /program --db one.db)"
expect same "$usual" /program/build/orvendal.png
expect different "$one" "$usual"
expect different "$one" "$(picture_for /program --db two.db)"
expect different "$one" "$(picture_for /program --db folder/one.db)"
expect same "$one" "$(picture_for /program --sucursal 02 --db=one.db)"
expect same "$one" "$(picture_for /program --db "$PWD/folder/../one.db" --crear)"
expect same "$(picture_for /program --db one.db --db two.db)" "$(picture_for /program --db two.db)"
expect same "${one%/*}" /program/build
exit "$failed"
