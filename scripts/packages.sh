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
  keep_services_off "$missing"
  # shellcheck disable=SC2086
  DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y -qq --no-install-recommends $missing \
    >/dev/null || { let_services_be; return 1; }
  let_services_be
}

# Of some packages only the program is wanted, which the tests start themselves: that the package
# starts its own service, now or when the machine starts, is the last thing that anyone expects.
# What was installed before is left as it is.
PACKAGES_WITH_SERVICES="vsftpd openipmi"

keep_services_off() {
  new_services=
  made_policy=
  for package in $PACKAGES_WITH_SERVICES; do
    case " $1 " in
      *" $package "*) new_services="$new_services $package" ;;
    esac
  done
  [ -n "$new_services" ] || return 0
  for service in $new_services; do
    # What "systemctl mask" does, which wants a running systemd.
    if [ -d /etc/systemd/system ] && [ ! -e "/etc/systemd/system/$service.service" ]; then
      $as_root ln -s /dev/null "/etc/systemd/system/$service.service"
    fi
  done
  if [ ! -e /usr/sbin/policy-rc.d ]; then
    made_policy=yes
    printf '#!/bin/sh\nexit 101\n' | $as_root tee /usr/sbin/policy-rc.d >/dev/null
    $as_root chmod 755 /usr/sbin/policy-rc.d
  fi
}

let_services_be() {
  if [ -n "$made_policy" ]; then
    $as_root rm -f /usr/sbin/policy-rc.d
  fi
  # Machines without systemd start what has a link in rc?.d.
  for service in $new_services; do
    if [ -e "/etc/init.d/$service" ]; then
      $as_root update-rc.d "$service" disable >/dev/null 2>&1 || true
    fi
  done
}

# To build the libraries, the plug-ins and the host.
BUILD_PACKAGES="g++ cmake ninja-build libboost-dev libcli11-dev libfmt-dev nlohmann-json3-dev"

# To build and test everything on both platforms.
TEST_PACKAGES="$BUILD_PACKAGES ccache clang clang-format libclang-rt-14-dev \
  g++-mingw-w64-x86-64-posix wine64 googletest libbenchmark-dev pkgconf python3 dmidecode git \
  util-linux iproute2 python3-pyftpdlib vsftpd libcurl4 curl openipmi"
