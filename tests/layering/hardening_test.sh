#!/usr/bin/env bash
# Builds a small program with one protection left out at a time and looks whether scripts/check_hardening notices.
# hardening_test.sh COMPILER
set -euo pipefail
check_hardening="$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)/scripts/check_hardening"
compiler="$1"
folder="$(mktemp -d)"
trap 'rm -rf "$folder"' EXIT
cat >"$folder/program.cpp" <<'SOURCE'
#include <cstdio>
#include <cstring>
int main(int, char** words) {
  char copy[16];
  std::strcpy(copy, words[0]);
  std::printf("%s\n", copy);
}
SOURCE

all=(-O2 -fPIE -pie -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack -fstack-protector-strong -U_FORTIFY_SOURCE
  -D_FORTIFY_SOURCE=2)
failed=0
build() { "$compiler" "$folder/program.cpp" -o "$folder/program" "${all[@]}" "$@"; }
refused() {  # refused WORD FLAG...: what is built with these flags besides is refused, with the word in the complaint
  local word="$1" said
  shift
  build "$@"
  if said="$("$check_hardening" "$folder/program" 2>&1)"; then
    echo "let pass, but lacks $word: $*"
    failed=1
  elif [[ $said != *"($word)"* || $(wc -l <<<"$said") != 1 ]]; then
    echo "expected one complaint about $word with $*, found: $said"
    failed=1
  fi
}

build
if ! "$check_hardening" "$folder/program"; then
  echo "refused, but has everything"
  failed=1
fi
refused -pie -fno-pie -no-pie
refused "-z relro" -Wl,-z,norelro
refused "-z now" -Wl,-z,lazy
refused "-z noexecstack" -Wl,-z,execstack
refused -fstack-protector-strong -fno-stack-protector
refused -D_FORTIFY_SOURCE=2 -U_FORTIFY_SOURCE
if "$check_hardening" "$folder/program.cpp" 2>/dev/null; then
  echo "let pass, but is no program"
  failed=1
fi
exit "$failed"
