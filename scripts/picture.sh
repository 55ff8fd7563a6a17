# shellcheck shell=bash
# Where a picture goes whose name nobody gave. To be sourced.

# picture_for ROOT WORDS...: one file for each store that the words of the program name, so that two screens on
# different stores do not overwrite each other's picture.
picture_for() {
  local root="$1" store="" word
  shift
  while (($#)); do
    word="$1"
    shift
    case "$word" in
      --db) store="${1:-}" ;;
      --db=*) store="${word#--db=}" ;;
    esac
  done
  if [[ -z "$store" ]]; then
    echo "$root/build/orvendal.png"
    return
  fi
  store="$(realpath --canonicalize-missing -- "$store")"
  echo "$root/build/orvendal-$(printf '%s' "$store" | sha256sum | cut -c 1-12).png"
}
