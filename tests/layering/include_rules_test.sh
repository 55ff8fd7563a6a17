#!/usr/bin/env bash
# Puts one line at a time into an otherwise empty house and looks whether scripts/check_rooms lets it stand.
set -euo pipefail
check_rooms="$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)/scripts/check_rooms"
house="$(mktemp -d)"
trap 'rm -rf "$house"' EXIT
mkdir -p "$house/scripts"
cp "$check_rooms" "$house/scripts/"
for room in adapters/{ado,com,headless,qt,sqlite,win32} bench component count form host lines \
  host/{ending,library,sample,script,store,text} platform/{base,data,forms,library} screen session store tests/support; do
  mkdir -p "$house/$room"
done

failed=0
holds() {  # holds FILE LINE: whether the check lets the line stand in that file
  printf '%s\n' "$2" >"$house/$1"
  local verdict=0
  output="$("$house/scripts/check_rooms" 2>&1)" || verdict=$?
  rm "$house/$1"
  return "$verdict"
}
allowed() {
  holds "$1" "$2" && return
  echo "refused, but is allowed: $1: $2 ($output)"
  failed=1
}
refused() {
  if holds "$1" "$2"; then
    echo "let stand, but is refused: $1: $2"
    failed=1
  elif [[ $output != *"$1"* ]]; then
    echo "refused without naming $1: $output"
    failed=1
  fi
}
includes() { echo "#include \"$1\""; }

# Down the floors.
allowed platform/forms/a.h "$(includes platform/base/value.h)"
allowed platform/data/a.h "$(includes platform/base/value.h)"
allowed platform/library/a.h "$(includes platform/forms/form.h)"
allowed platform/library/a.h "$(includes platform/data/recordset.h)"
allowed session/datos_comunes.h "$(includes platform/library/library.h)"
allowed store/a.cpp "$(includes platform/data/recordset.h)"
allowed screen/a.cpp "$(includes platform/forms/form.h)"
allowed form/a.cpp "$(includes screen/action_bar.h)"
allowed form/a.cpp "$(includes session/component_state.h)"
allowed lines/a.cpp "$(includes form/frm_orvendalciales.h)"
allowed count/a.cpp "$(includes store/statements.h)"
allowed component/class_orvendal.cpp "$(includes form/frm_orvendalciales.h)"
allowed adapters/headless/a.cpp "$(includes platform/forms/form.h)"
allowed adapters/sqlite/a.cpp "$(includes platform/data/recordset.h)"
allowed adapters/com/a.cpp "$(includes component/class_orvendal.h)"
allowed adapters/com/a.cpp "$(includes form/frm_orvendalciales.h)"
refused adapters/com/a.cpp "$(includes adapters/win32/win32_window_host.h)"
allowed adapters/com/a.cpp "$(includes DllTrevano.h)"
refused adapters/win32/a.cpp "$(includes adapters/com/class_factory.h)"
allowed adapters/win32/a.cpp "$(includes adapters/automation/dispatch_rules.h)"
refused adapters/com/a.cpp "$(includes lines/a.h)"
allowed host/a.cpp "$(includes adapters/qt/qt_window_host.h)"
allowed host/library/a.cpp "$(includes host/store/store_rows.h)"
allowed host/script/a.cpp "$(includes host/library/stand_in_library.h)"
refused host/store/a.cpp "$(includes host/library/journal.h)"
refused host/store/a.cpp "$(includes host/host_context.h)"
refused host/words.h "$(includes host/script/world.h)"
refused host/text/a.cpp "$(includes host/words.h)"
refused host/ending/a.cpp "$(includes host/script/world.h)"
refused host/library/a.cpp "$(includes host/options.h)"
refused host/script/a.cpp "$(includes host/command_line.h)"
refused host/command_line.cpp "$(includes host/sample/chosen_store.h)"
allowed host/sample/a.cpp "$(includes host/options.h)"
refused host/host_context.h "$(includes host/library/journal.h)"
refused host/script/a.cpp "$(includes host/windows/store/open_store.h)"
refused host/library/a.cpp "$(includes host/sample/chain.h)"
refused host/sample/a.cpp "$(includes host/script/world.h)"
refused host/library/a.cpp "$(includes host/program.h)"
refused platform/forms/a.h "$(includes session/component_state.h)"
refused screen/a.cpp "$(includes session/component_state.h)"
allowed tests/a.cpp "$(includes host/script/world.h)"
allowed platform/base/a.cpp '#include <vector>'

# Up the floors, or across.
refused platform/base/a.h "$(includes platform/forms/form.h)"
refused platform/base/a.h "$(includes platform/data/recordset.h)"
refused platform/forms/a.h "$(includes platform/data/recordset.h)"
refused platform/forms/a.h "$(includes platform/library/library.h)"
refused platform/data/a.h "$(includes platform/forms/form.h)"
refused platform/library/a.h "$(includes session/datos_comunes.h)"
refused session/datos_comunes.cpp "$(includes form/frm_orvendalciales.h)"
refused session/component_state.h "$(includes store/statements.h)"
refused store/a.cpp "$(includes platform/forms/form.h)"
refused store/a.cpp "$(includes screen/palette.h)"
refused screen/a.cpp "$(includes store/statements.h)"
refused screen/a.cpp "$(includes form/frm_orvendalciales.h)"
refused form/a.cpp "$(includes lines/a.h)"
refused form/a.cpp "$(includes component/class_orvendal.h)"
refused lines/a.cpp "$(includes count/a.h)"
refused count/a.cpp "$(includes lines/a.h)"
refused adapters/headless/a.cpp "$(includes component/class_orvendal.h)"
refused adapters/qt/a.cpp "$(includes adapters/headless/robot.h)"
refused adapters/sqlite/a.cpp "$(includes platform/forms/form.h)"
for room in platform/base platform/forms store screen form lines count component; do
  refused "$room/a.cpp" "$(includes host/language.h)"
  refused "$room/a.cpp" "$(includes adapters/qt/qt_canvas.h)"
  refused "$room/a.cpp" "$(includes tests/support/form_driver.h)"
done
refused host/a.cpp "$(includes tests/support/form_driver.h)"
refused adapters/headless/a.cpp "$(includes bench/a.h)"

# Conditionals of a system.
for room in platform/base platform/forms store screen form lines count component; do
  refused "$room/a.cpp" '#ifdef _WIN32'
  refused "$room/a.cpp" '#if defined(__linux__)'
done
allowed host/a.cpp '#ifdef _WIN32'
allowed adapters/win32/a.cpp '#ifdef _WIN64'
allowed form/a.h '#ifdef NDEBUG'

# Types of COM.
for type in HRESULT VARIANT BSTR; do
  refused form/a.cpp "$type value;"
  refused host/a.cpp "$type value;"
  refused adapters/qt/a.cpp "$type value;"
  allowed adapters/com/a.cpp "$type value;"
  allowed adapters/ado/a.cpp "$type value;"
done

# Texts for the store.
for text in 'SELECT * FROM Productos' 'INSERT INTO Productos' 'DELETE FROM Productos' 'UPDATE Productos SET' \
  'CREATE TABLE Productos'; do
  for room in platform/base screen form lines count component adapters/headless adapters/qt; do
    refused "$room/a.cpp" "const char* text = \"$text\";"
    refused "$room/a.cpp" "  $text"  # a line of a raw text
  done
  allowed store/a.cpp "const char* text = \"$text\";"
  allowed host/a.cpp "const char* text = \"$text\";"
  allowed tests/a.cpp "const char* text = \"$text\";"
  allowed adapters/sqlite/a.cpp "const char* text = \"$text\";"
done

exit "$failed"
