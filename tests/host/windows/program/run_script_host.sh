#!/bin/sh
# Has cscript count with the registered component and library while hands type outside.
# run_script_host.sh FOLDER SCRIPT HANDS
set -eu
. "${0%/*}/sample_world.sh"

answer_as_ado
register
"$emulator" cscript //nologo "$(windows_path "$2")" "$(windows_path "$work/tienda.db")" > "$work/said" &
script=$!
count_with "$3" || true
wait "$script" || true
register /u
expect_all_as_expected "$work/said"
