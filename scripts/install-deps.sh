#!/usr/bin/env bash
# Installs what building, testing and running Torvanbridge needs on Debian 12.
# Idempotent: only missing packages are installed. Further packages named as arguments
# are installed as well (scripts/build-package.sh asks for its tools this way).
set -euo pipefail

packages=(
    qt6-base-dev        # Qt Core, Gui, Widgets, PrintSupport, Test and the tools
    cmake
    ninja-build
    g++
    libbenchmark-dev    # bench/
    fonts-liberation2   # metric-compatible "Arial" and "Courier New" for the board and reports
    xvfb                # screenshots of the desktop program
    poppler-utils       # pdftoppm and pdftotext: looking at and comparing rendered reports
    python3             # scripts/make-example.py, used by the output comparison
)
packages+=("$@")

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done

if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

if ! command -v apt-get >/dev/null 2>&1; then
    echo "install-deps: apt-get not found; please install: ${missing[*]}" >&2
    exit 1
fi

sudo=""
if [ "$(id -u)" -ne 0 ]; then
    sudo="sudo"
fi

echo "install-deps: installing ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
