#!/usr/bin/env bash
# Installs the Debian 12 packages the build needs; does nothing when they are all present.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-private-dev qt6-base-dev-tools
    qt6-declarative-dev qt6-declarative-private-dev qt6-declarative-dev-tools
    qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools qt6-qpa-plugins
    qml6-module-qtqml qml6-module-qtqml-models qml6-module-qtqml-workerscript
    qml6-module-qtquick qml6-module-qtquick-window qml6-module-qtquick-templates
    qml6-module-qtquick-controls qml6-module-qtquick-layouts qml6-module-qtquick-shapes
    qml6-module-qttest qml-qt6 qt6-qmllint-plugins
    libqt6svg6
    libgl-dev libvulkan-dev libxkbcommon-dev
    libpugixml-dev libmuparser-dev libbenchmark-dev
    libeigen3-dev libqt6sql6-sqlite
    clang libclang-rt-14-dev
    xvfb xauth libgl1-mesa-dri libglx-mesa0 libegl-mesa0
)

missing=()
for package in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$package")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

echo "Installing: ${missing[*]}"
sudo_cmd=()
if [ "$(id -u)" -ne 0 ]; then
    sudo_cmd=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo_cmd[@]}" apt-get update -qq
"${sudo_cmd[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
