# Sourced by run and test: the Debian packages that the project needs, and how they get here.

sequence_index_packages="g++ cmake ninja-build ccache rapidjson-dev libcli11-dev libzip-dev libutf8proc-dev \
libfontconfig-dev libavformat-dev libavcodec-dev libavutil-dev \
qt6-base-dev fonts-dejavu-core fonts-droid-fallback libgtest-dev libgmock-dev libbenchmark-dev valgrind binutils \
python3 xvfb xauth xdotool imagemagick"

# Prints those of the named packages that are not installed.
missing_packages() {
  for package in "$@"; do
    case "$installed_packages" in
      *" $package "*) ;;
      *) printf '%s ' "$package" ;;
    esac
  done
}

# Installs what is missing among the named packages; needs root or sudo.
install_packages() {
  if ! command -v dpkg-query >/dev/null 2>&1; then
    echo "This is no Debian system; these packages (or their like) are needed: $*" >&2
    return 0
  fi
  installed_packages=" $(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
    sed -n 's/^installed //p' | tr '\n' ' ')"
  missing=$(missing_packages "$@")
  [ -z "$missing" ] && return 0
  if [ "$(id -u)" = 0 ]; then
    as_root=
  elif command -v sudo >/dev/null 2>&1; then
    as_root=sudo
  else
    echo "These packages are missing and installing them needs root: $missing" >&2
    return 1
  fi
  echo "Installing $missing" >&2
  # shellcheck disable=SC2086 # the lists are meant to be split
  { $as_root apt-get update -qq &&
    DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing; } >&2
}

# Configures a preset once, then builds the named targets (none: all), with progress on standard error.
build_preset() {
  preset=$1
  shift
  if [ ! -f "$root/build/$preset/build.ninja" ]; then
    (cd "$root" && cmake --preset "$preset") >&2 || return
  fi
  build_status=$(mktemp)
  { cmake --build "$root/build/$preset" -j 2 ${1:+--target "$@"} 2>&1 && echo 0 > "$build_status" ||
    echo 1 > "$build_status"; } | grep -v -e 'no work to do' -e 'Re-checking globbed' -e 'GLOB mismatch' >&2 || :
  status=$(cat "$build_status")
  rm -f "$build_status"
  return "$status"
}
