# Sourced by the other scripts: what the build needs, and how it gets there.

# What Debian calls it. fonts-urw-base35 holds the screen's letters, fonts-dejavu-core is there for all others.
build_packages=(g++ cmake ninja-build qt6-base-dev libsqlite3-dev libcli11-dev libgtest-dev fonts-urw-base35
  fonts-dejavu-core)

# To build for Windows: the compilers, the interface definitions of the system, and what SQLite's sources are made with.
windows_build_packages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools libwine-dev libwine
  googletest make patch tcl8.6)

# With ccache, a clone in another place finds what an earlier one compiled.
export CCACHE_BASEDIR="${root:?}" CCACHE_NOHASHDIR=1

is_installed() {
  [[ "$(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# Installs the packages that are missing if it may; otherwise prints the one command to type and fails. On a
# system without apt it leaves the rest to the build, which says what it does not find.
install_missing() {
  command -v apt-get >/dev/null || return 0
  local missing=() package
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  ((${#missing[@]} == 0)) && return 0

  local as_root=()
  if ((EUID != 0)); then
    if command -v sudo >/dev/null && sudo --non-interactive true 2>/dev/null; then
      as_root=(sudo --non-interactive)
    else
      local command="apt-get update && apt-get install --no-install-recommends ${missing[*]}"
      echo "Some packages are missing. Type this, then try again:" >&2
      if command -v sudo >/dev/null; then
        echo "  sudo sh -c '$command'" >&2
      else
        echo "  su -c '$command'" >&2
      fi
      return 1
    fi
  fi
  echo "Installing ${missing[*]}" >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q >&2
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends \
    "${missing[@]}" >&2
}

# Configures a preset once (the build itself sees to later changes), then builds it: build_preset NAME [TARGET...]
build_preset() {
  local preset="$1"
  shift
  local targets=()
  (($# > 0)) && targets=(--target "$@")
  (
    cd "$root"
    [[ -f "build/$preset/build.ninja" ]] || cmake --preset "$preset"
    cmake --build --preset "$preset" "${targets[@]}"
  )
}
