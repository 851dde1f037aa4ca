# shellcheck shell=bash disable=SC2034
# What ./run and ./test share: packages and building. Sourced from the top folder.

tool=$(basename "$0")

# What building takes, and what a window needs on a screen that nobody sees.
build_packages=(cmake ninja-build g++ qt6-base-dev libxcb-xkb-dev libexpected-dev fonts-liberation)
screen_packages=(xvfb openbox xdotool python3)

say_and_stop() {
  echo "$tool: $*" >&2
  exit 1
}

# Installs those of the named Debian packages that are not installed; goes on where it cannot tell.
need_packages() {
  local installed missing=() admin=() package
  if ! { command -v dpkg-query && command -v apt-get; } >/dev/null; then
    echo "$tool: this is no Debian system, so what stands for these packages is not checked: $*" >&2
    return 0
  fi
  installed=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null || true)
  for package; do
    grep -qxF "installed $package" <<<"$installed" || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null ||
      say_and_stop "cannot install packages without root or sudo; missing: ${missing[*]}"
    admin=(sudo)
    # Nobody is there to type a password.
    [ -t 0 ] || admin=(sudo -n)
  fi
  echo "$tool: installing ${missing[*]}"
  "${admin[@]}" apt-get -qq update </dev/null ||
    say_and_stop "cannot fetch the package lists (apt-get update failed); missing: ${missing[*]}"
  "${admin[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get -qq install -y --no-install-recommends "${missing[@]}" </dev/null ||
    say_and_stop "cannot install these packages (apt-get failed): ${missing[*]}"
}

# Brings the build folder of a preset up to date: build PRESET [TARGET...].
build() {
  local folder=build/$1
  # A folder that another tree or an older preset left behind is configured anew.
  if ! [ "$folder/build.ninja" -nt CMakePresets.json ] ||
    ! grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$folder/CMakeCache.txt"; then
    cmake --fresh --preset "$1" || say_and_stop "cannot configure $folder, see above"
  fi
  cmake --build "$folder" ${2:+--target "${@:2}"} || say_and_stop "cannot build $folder, see above"
}
