# For the other scripts: installs Debian packages that are missing, and nothing when none is.

need_packages() {
  missing=
  for package in "$@"; do
    if ! dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null | grep -qx installed; then
      missing="$missing $package"
    fi
  done
  [ -n "$missing" ] || return 0
  if ! command -v apt-get >/dev/null 2>&1; then
    echo "$0: these packages are missing, and there is no apt-get to install them:$missing" >&2
    return 1
  fi
  echo "$0: installing$missing"
  as_root=
  if [ "$(id -u)" -ne 0 ]; then
    as_root=sudo
  fi
  $as_root apt-get update -qq
  # shellcheck disable=SC2086
  DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing \
    >/dev/null
}

# To build the libraries, the plug-ins and the host.
BUILD_PACKAGES="g++ cmake ninja-build libboost-dev libcli11-dev libfmt-dev nlohmann-json3-dev"

# To build and test everything on both platforms.
TEST_PACKAGES="$BUILD_PACKAGES ccache clang clang-format libclang-rt-14-dev \
  g++-mingw-w64-x86-64-posix wine64 googletest libbenchmark-dev pkgconf python3 dmidecode git \
  util-linux iproute2"
