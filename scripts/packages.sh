# shellcheck shell=bash disable=SC2034
# Sourced by the scripts at the top: which Debian packages each of them needs, and how they get there.

BUILD_PACKAGES=(g++ cmake ninja-build ccache qt6-base-dev qt6-webengine-dev qt6-svg-dev libpugixml-dev zlib1g-dev
  libcurl4-openssl-dev)
RUN_PACKAGES=(libqt6webenginewidgets6 libqt6svg6 libcurl4 qt6-qpa-plugins fonts-dejavu-core)
VIRTUAL_DISPLAY_PACKAGES=(xvfb xauth)
TEST_PACKAGES=(libexpat1-dev libgtest-dev libgmock-dev git php-cli tidy)
LINT_PACKAGES=(clang clang-format clang-tidy libclang-rt-14-dev)
BENCH_PACKAGES=(libbenchmark-dev libctemplate-dev pkg-config php-cli curl)

# need PACKAGE...: installs those that are missing. Says nothing and asks for no rights when none is.
need() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0

  local as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -q
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -q -y --no-install-recommends "${missing[@]}"
}
