# What Loftkeep is built, tested and packaged with, as Debian 12 names it. `run` and `test` source this file.
packages=(
  g++                    # compiler
  cmake                  # build, tests and packages
  ninja-build            # what CMake drives
  ccache                 # makes the second build quick
  lld                    # links the tests
  qt6-base-dev           # screens, printing, Qt Test
  qt6-svg-dev            # the icon, sharp at every size
  qt6-wayland            # native windows on a Wayland desktop
  libsqlite3-dev         # the database
  fonts-dejavu-core      # text on the screen
  fonts-liberation       # text on paper, with the widths of Arial
  libbenchmark-dev       # benchmarks
  poppler-utils          # tests read the text of printed PDFs
  python3                # source checks
  clang-format           # source checks
  clang-tidy             # source checks
  dpkg-dev               # finds what the .deb depends on
  file                   # finds what the .deb must strip
)

Say() { printf '== %s\n' "$*"; }

# Installs what is missing of the list.
InstallPackages() {
  if ! command -v apt-get >/dev/null; then
    Say "No apt-get here: taking it that these are installed: ${packages[*]}"
    return
  fi
  local missing=() package
  for package in "${packages[@]}"; do
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      Say "Please install as root, then start again: apt-get install ${missing[*]}"
      return 1
    fi
    root=(sudo)
  fi
  Say "Installing ${missing[*]}"
  "${root[@]}" apt-get update -q
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# Configures and builds a preset; further arguments go to the build.
Build() {
  local preset=$1
  shift
  Say "Building ($preset)"
  mkdir -p build
  cmake --preset "$preset" >"build/$preset.log" 2>&1 || { cat "build/$preset.log"; return 1; }
  cmake --build --preset "$preset" "$@"
}
