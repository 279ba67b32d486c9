# Sourced by ./run and ./test: installs what is missing on a Debian machine.

build_packages="cmake ninja-build g++ libgtest-dev libbenchmark-dev
  qt6-base-dev libqt6opengl6-dev qt6-tools-dev qt6-svg-dev libqt6svg6 qt6-image-formats-plugins fonts-dejavu-core
  gemmi-dev tao-pegtl-dev libstb-dev libxy-dev libcli11-dev libhdf5-dev zlib1g-dev libeigen3-dev nlohmann-json3-dev"
# For the locale with decimal commas that the tests run in, a session bus with a settings portal of the test, and the
# tests of documents.
test_packages="locales dbus-daemon python3"
# For the test that uses the program in real windows, and the pictures of the guide.
screen_packages="xvfb openbox"
# With the last three the installation test looks at the desktop entry, the metainfo and the man pages too.
style_packages="codespell clang-format-14 clang-tidy-14 clang-14 cppcheck desktop-file-utils appstream mandoc"
fuzz_packages="clang-14 libclang-rt-14-dev"

# For zol-batch in many processes (ZOL_BUILD_MPI).
mpi_packages="libopenmpi-dev openmpi-bin"

# Installs the packages among the arguments that are not there, and says so.
ensure_packages() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || { echo "These packages are missing and there is no sudo: ${missing[*]}" >&2; return 1; }
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# "12 of 427" on a terminal, of the steps that ninja tells.
show_steps() {
  if [ -t 2 ]; then
    sed -un 's/^\[\([0-9]*\)\/\([0-9]*\)\].*/\1 of \2/p' | while read -r step; do printf '\r%s ' "$step" >&2; done
    printf '\r%20s\r' '' >&2
  else
    cat >/dev/null
  fi
}

# Configures a preset unless that is done, and builds it; the compiler's messages show only when something fails.
build_preset() {
  local preset=$1 folder=$2
  local log
  log=$(mktemp)
  [ -f "$folder/build.ninja" ] || echo "Building in $folder (the first time takes some minutes)"
  if ! { [ -f "$folder/build.ninja" ] || cmake --preset "$preset"; } >"$log" 2>&1 ||
     ! cmake --build --preset "$preset" 2>&1 | tee -a "$log" | show_steps; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
