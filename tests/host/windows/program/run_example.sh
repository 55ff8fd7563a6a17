#!/bin/sh
# Counts with the smallest hosts that are handed out, a program whose manifest names the component and a script, and
# has another script read what was saved.
# run_example.sh FOLDER SCRIPT HANDS EXAMPLES PROGRAM
set -eu
. "${0%/*}/sample_world.sh"

answer_as_ado
"$emulator" regsvr32 /s "$(windows_path "$folder/DllTrevano.dll")"
store=$(windows_path "$work/tienda.db")
printf 'CreateObject("DllTrevano.DatosClase").OpenStore WScript.Arguments(0)\r\n' > "$work/make.vbs"
"$emulator" cscript //nologo "$(windows_path "$work/make.vbs")" "$store"

cp "$folder/DllOrvendal.dll" "$5" "$work/"
cp "$4/host.exe.manifest" "$work/"
"$emulator" "$work/${5##*/}" "Provider=SQLOLEDB.1;Data Source=$store" 02 &
program=$!
count_with "$3"
wait "$program"

"$emulator" regsvr32 /s "$(windows_path "$folder/DllOrvendal.dll")"
"$emulator" cscript //nologo "$(windows_path "$4/host.vbs")" "Provider=SQLOLEDB.1;Data Source=$store" 02 &
program=$!
"$emulator" "$3" window Orvendal close gone Orvendal
wait "$program"
register /u

"$emulator" cscript //nologo "$(windows_path "$2")" "$store" "smallest host" > "$work/said"
expect_all_as_expected "$work/said"
