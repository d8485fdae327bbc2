#!/usr/bin/env bash
# Installs the Debian packages the build, the tool and the tests need. Safe to run again:
# it asks apt only for what is missing.
set -euo pipefail

packages=(
    build-essential cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-base-dev-tools libqt6opengl6-dev
    libgtest-dev libgmock-dev googletest
    libssl-dev
    unixodbc-dev unixodbc tdsodbc freetds-bin
    mdbtools
    openjdk-17-jdk-headless maven
    clang-format clang-tidy
    xvfb xauth
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
