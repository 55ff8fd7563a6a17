# What the tests of whole programs have in common; read by them, with the emulator in ORVENDAL_EMULATOR and the
# first argument the folder of the libraries. A call for the emulator itself goes to it.
emulator=$ORVENDAL_EMULATOR
[ "$1" != wineboot ] || exec "$emulator" "$@"
folder=$1
# Beside the build, which every Wine sees.
work=$(mktemp -d "$PWD/sample_world.XXXXXX")
trap 'rm -rf "$work"' EXIT

windows_path() {
  printf 'Z:%s' "$1" | tr / '\\'
}

# The prefix is the tests' own: there the store stands in for ADO.
answer_as_ado() {
  for class in 00000514:ADODB.Connection 00000535:ADODB.Recordset; do
    identifier="{${class%%:*}-0000-0010-8000-00AA006D2EA4}"
    key="HKLM\\Software\\Classes\\CLSID\\$identifier\\InprocServer32"
    "$emulator" reg add "$key" /ve /d "$(windows_path "$folder/OrvendalStore.dll")" /f
    "$emulator" reg add "$key" /v ThreadingModel /d Apartment /f
    "$emulator" reg add "HKLM\\Software\\Classes\\${class#*:}\\CLSID" /ve /d "$identifier" /f
  done > "$work/registry" 2>&1
}

register() {  # register [/u]
  for dll in DllOrvendal DllTrevano; do
    "$emulator" regsvr32 /s "$@" "$(windows_path "$folder/$dll.dll")"
  done
}

# In branch 02, which has not counted yet: a stylist, a product, a quantity; saves and closes.
count_with() {  # count_with HANDS
  "$emulator" "$1" \
    window Orvendal click 457 211 \
    window "Choose a Stylist" type mar key return \
    window Orvendal double 125 339 type CHA057 key return type 33 key return click 703 71 close gone Orvendal
}

# A script's last line tells that it came to its end: the script host ends well whatever happens.
expect_all_as_expected() {  # expect_all_as_expected FILE
  tr -d '\r' < "$1"
  test "$(tail -n 1 "$1" | tr -d '\r')" = "all as expected"
}
