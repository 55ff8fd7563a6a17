#!/bin/sh
# Counts in the sample program, with nothing but the store registered, and has a script read what was saved.
# run_program.sh FOLDER SCRIPT HANDS
set -eu
. "${0%/*}/sample_world.sh"

store=$(windows_path "$work/tienda.db")
"$emulator" "$folder/orvendal.exe" --db "$store" --crear --sucursal 02 --puesto 7 --turno 2 --idioma en --dialecto jet &
program=$!
count_with "$3"
wait "$program"
answer_as_ado
"$emulator" cscript //nologo "$(windows_path "$2")" "$store" > "$work/said"
expect_all_as_expected "$work/said"
