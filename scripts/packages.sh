# shellcheck shell=bash disable=SC2034
# Sourced by the scripts at the top: which Debian packages each of them needs, and how they get there.

BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev qt6-webengine-dev qt6-svg-dev libpugixml-dev zlib1g-dev
  libcurl4-openssl-dev cmark-gfm)
RUN_PACKAGES=(libqt6webenginewidgets6 libqt6svg6 libcurl4 qt6-qpa-plugins fonts-dejavu-core fonts-liberation)
VIRTUAL_DISPLAY_PACKAGES=(xvfb xauth)
TEST_PACKAGES=(libexpat1-dev libgtest-dev libgmock-dev git php-cli tidy xdg-user-dirs dbus-daemon openbox)
LINT_PACKAGES=(clang clang-format clang-tidy libclang-rt-14-dev)
PACKAGING_PACKAGES=(librsvg2-bin file dpkg-dev)
AXE_PACKAGES=(npm)
AXE_VERSION=4.14.1
BENCH_PACKAGES=(libbenchmark-dev libctemplate-dev pkg-config php-cli curl)

# need PACKAGE...: installs those that are missing. Says nothing and asks for no rights when none is. Who has no rights
# is told what to run.
need() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    as_root=(sudo)
    if ! command -v sudo >/dev/null || ! sudo -v 2>/dev/null; then
      echo "Some packages are missing that only root may install; run this as root, then this script again:" \
        "apt-get install -y --no-install-recommends ${missing[*]}" >&2
      return 1
    fi
  fi
  echo "Installing packages: ${missing[*]}"
  quietly "${as_root[@]}" apt-get update -q
  quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

# quietly COMMAND...: shows what it says only when it fails.
quietly() {
  local said
  said=$("$@" 2>&1) || {
    echo "$said" >&2
    return 1
  }
}
