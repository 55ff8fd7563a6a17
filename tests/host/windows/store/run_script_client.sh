#!/bin/sh
# Points ADO's class identifiers at the store, in the tests' own prefix, lets cscript run a client, points them back.
# Ends well only if the client came to its end without a complaint.
# run_script_client.sh EMULATOR DLL SCRIPT FOLDER
set -eu
emulator=$1
dll=$(printf 'Z:%s' "$2" | tr / '\\')
script=$(printf 'Z:%s' "$3" | tr / '\\')
mkdir -p "$4"
rm -f "$4/guion.db"*
: > "$4/guion.db"  # an empty file is an empty store
store=$(printf 'Z:%s/guion.db' "$4" | tr / '\\')

point_at() {  # point_at DLL: the prefix names both classes already, for an ADO of its own
  for class in 00000514 00000535; do
    "$emulator" reg add "HKLM\\Software\\Classes\\CLSID\\{$class-0000-0010-8000-00AA006D2EA4}\\InprocServer32" \
      /ve /d "$1" /f > /dev/null
  done
}

point_at "$dll"
said=$("$emulator" cscript //nologo "$script" "$store" | tr -d '\r') || true
point_at 'C:\Program Files\Common Files\System\ADO\msado15.dll'
printf '%s\n' "$said"
test "$said" = "all as expected"
