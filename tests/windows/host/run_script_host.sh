#!/bin/sh
# Has cscript count with the registered component and library while hands type outside. Ends well only if the
# script came to its end without a complaint. The prefix is the tests' own: there the store stands in for ADO.
# run_script_host.sh FOLDER SCRIPT HANDS, with the emulator in ORVENDAL_EMULATOR.
set -eu
emulator=$ORVENDAL_EMULATOR
[ "$1" != wineboot ] || exec "$emulator" "$@"

windows_path() {
  printf 'Z:%s' "$1" | tr / '\\'
}
answer_as_ado() {  # answer_as_ado CLASS NAME
  key="HKLM\\Software\\Classes\\CLSID\\{$1-0000-0010-8000-00AA006D2EA4}"
  "$emulator" reg add "$key\\InprocServer32" /ve /d "$(windows_path "$folder/OrvendalStore.dll")" /f
  "$emulator" reg add "$key\\InprocServer32" /v ThreadingModel /d Apartment /f
  "$emulator" reg add "HKLM\\Software\\Classes\\$2\\CLSID" /ve /d "{$1-0000-0010-8000-00AA006D2EA4}" /f
}

folder=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
{
  answer_as_ado 00000514 ADODB.Connection
  answer_as_ado 00000535 ADODB.Recordset
} > "$work/registry" 2>&1
for dll in DllOrvendal DllTrevano; do
  "$emulator" regsvr32 /s "$(windows_path "$folder/$dll.dll")"
done

"$emulator" cscript //nologo "$(windows_path "$2")" "$(windows_path "$work/tienda.db")" > "$work/said" &
script=$!
"$emulator" "$3" \
  window Orvendal click 457 211 \
  window "Choose a Stylist" type mar key return \
  window Orvendal double 125 339 type CHA057 key return type 33 key return click 703 71 close gone Orvendal || true
wait "$script" || true

for dll in DllOrvendal DllTrevano; do
  "$emulator" regsvr32 /s /u "$(windows_path "$folder/$dll.dll")"
done
tr -d '\r' < "$work/said"
test "$(tail -n 1 "$work/said" | tr -d '\r')" = "all as expected"
