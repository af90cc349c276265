# SPDX-License-Identifier: MIT
#
# Sourced by ./run, ./test, ./package and .ci/run: installs the Debian packages that are missing, by
# name.

# The libraries that programs and tests are made of.
library_packages=(
  libavcodec-dev libavformat-dev libavutil-dev libswscale-dev
  libgmock-dev libgtest-dev
  libcli11-dev libheif-dev libicu-dev libjpeg62-turbo-dev libpugixml-dev libseccomp-dev
  nlohmann-json3-dev
  libgnustep-base-dev libobjc-12-dev
  qt6-base-dev qt6-image-formats-plugins
  tzdata zlib1g-dev
)

# What building and testing need.
build_packages=(
  cmake g++ git ninja-build pkg-config
  fonts-inter fonts-urw-base35
  libbenchmark-dev
  "${library_packages[@]}"
)

# What the device build needs.
device_packages=(clang-19 libc++-19-dev libssl-dev lld-19 llvm-19 musl-dev)

# What running the phone's library needs besides; its host's libraries are unpacked for arm64.
emulated_packages=(qemu-user "${device_packages[@]}")

# What .ci/run needs besides: formatting, static checks, sanitizers and fuzzers, the device build and
# its run, and the peers it compares with.
ci_packages=(clang-19 clang-format clang-tidy ffmpeg libclang-rt-19-dev libimage-exiftool-perl
  mediainfo "${emulated_packages[@]}")

# install_packages NAME...: installs those that are missing, with sudo where not root, and says so.
# Quick when nothing is missing.
install_packages() {
  local missing=() name
  for name in "$@"; do
    dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed ||
      missing+=("$name")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing missing packages: ${missing[*]}" >&2
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# show_progress: says how far the ninja is whose output it reads: on one line of a terminal, else a
# line for every tenth.
show_progress() {
  local line done total tenth=0
  while IFS= read -r line; do
    [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
    done=${BASH_REMATCH[1]} total=${BASH_REMATCH[2]}
    if [ -t 2 ]; then
      printf '\r  %d of %d steps' "$done" "$total" >&2
    elif ((done * 10 / total > tenth)); then
      tenth=$((done * 10 / total))
      echo "  $((tenth * 10)) %" >&2
    fi
  done
  if [ -t 2 ]; then printf '\r\e[K' >&2; fi
}

# build_preset PRESET [TARGET...]: configures once, then builds. Says how far it is, and prints the
# build's own output when it fails.
build_preset() {
  local preset=$1 log
  shift
  log=$(mktemp)
  echo "Building ($preset) ..." >&2
  if ! { { [ -f "build/$preset/build.ninja" ] || cmake --preset "$preset"; } &&
    cmake --build --preset "$preset" ${1:+--target "$@"}; } 2>&1 | tee "$log" | show_progress; then
    cat "$log" >&2
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}
