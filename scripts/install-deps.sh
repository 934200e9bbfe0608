#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running Tessaro need,
# skipping the step when every one of them is already present.
set -euo pipefail

packages=(cmake make g++ qtbase5-dev qttools5-dev-tools qttools5-dev xvfb xauth fonts-dejavu-core doxygen)
if [[ "${1:-}" == "--fuzz" ]]; then
    packages+=(clang libclang-rt-14-dev)
fi

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[[ $(id -u) -ne 0 ]] && sudo="sudo"
$sudo apt-get update -qq
DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
