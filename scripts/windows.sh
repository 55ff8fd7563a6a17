# Sourced by the other scripts after packages.sh: building for Windows, and running what was built under Wine.

wine_packages=(wine wine64 xvfb xauth)

# Whether this machine can build for Windows; installs what it may.
can_build_for_windows() {
  install_missing "${windows_build_packages[@]}" || return 1
  local tool
  for tool in {x86_64,i686}-w64-mingw32-g++-posix {x86_64,i686}-w64-mingw32-{widl,windres} make patch tclsh8.6; do
    if ! command -v "$tool" >/dev/null; then
      echo "$tool is not installed" >&2
      return 1
    fi
  done
}

# Whether it can run 64-bit programs for Windows.
can_run_wine() {
  install_missing "${wine_packages[@]}" || return 1
  local tool
  for tool in wine Xvfb; do
    if ! command -v "$tool" >/dev/null; then
      echo "$tool is not installed" >&2
      return 1
    fi
  done
}

# Readies 32-bit programs: with the machine's own Wine if it has 32 bits too, otherwise in a root of their own.
prepare_wine_of_32_bits() {
  local own
  for own in /usr/lib/i386-linux-gnu/wine /usr/lib32/wine /usr/lib/wine; do
    [[ -e $own/i386-unix/ntdll.so ]] && return 0
  done
  if [[ $root =~ [[:space:]] ]]; then
    echo "the 32-bit root cannot show a folder with spaces in its name" >&2
    return 1
  fi
  if ((EUID == 0)) && ! command -v debootstrap >/dev/null; then install_missing debootstrap || return 1; fi
  ORVENDAL_I386_ROOT="$("$root/scripts/i386_root")" || return 1
  export ORVENDAL_I386_ROOT ORVENDAL_SHARED_FOLDERS="$root"
  export ORVENDAL_WINE="$root/cmake/toolchains/run_in_i386_root.sh"
}

# The processes of the prefixes of a build folder, Wine's servers among them: wine_processes FOLDER
wine_processes() {
  local environment
  for environment in /proc/[0-9]*/environ; do
    if grep -qaF "WINEPREFIX=$1/wine_prefix" "$environment" 2>/dev/null; then basename "${environment%/environ}"; fi
  done
}

# Ends what still runs in the prefixes of a build folder: stop_wine FOLDER
stop_wine() {
  local prefix left
  for prefix in "$1"/wine_prefix*; do
    [[ -d $prefix ]] || continue
    ORVENDAL_WINEPREFIX="$prefix" ORVENDAL_WINE_SECONDS=30 "$root/cmake/toolchains/run_under_wine.sh" wineboot --kill \
      >/dev/null 2>&1 || true
  done
  # Its servers stay for some seconds after the last program.
  for _ in {1..20}; do
    left="$(wine_processes "$1")"
    [[ -z $left ]] && return
    sleep 0.5
  done
  xargs kill <<<"$left" || true
}

# Runs the tests of a preset for Windows under Wine; what they start ends with them: run_under_wine PRESET
run_under_wine() (
  folder="$root/build/$1"
  unset DISPLAY WAYLAND_DISPLAY
  trap 'stop_wine "$folder"' EXIT
  echo "== $1 under Wine"
  cd "$root"
  ctest --preset "$1"
)
