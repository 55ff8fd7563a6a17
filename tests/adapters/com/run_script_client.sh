#!/bin/sh
# Registers the component, lets cscript run a client, takes the registration back. Ends well only if the client
# came to its end without a complaint.
# run_script_client.sh EMULATOR DLL SCRIPT
set -eu
emulator=$1
dll=$(printf 'Z:%s' "$2" | tr / '\\')
script=$(printf 'Z:%s' "$3" | tr / '\\')
"$emulator" regsvr32 /s "$dll"
said=$("$emulator" cscript //nologo "$script" | tr -d '\r') || true
"$emulator" regsvr32 /s /u "$dll"
printf '%s\n' "$said"
test "$said" = "all as expected"
