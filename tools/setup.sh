#!/usr/bin/env bash
# Installs what is missing on a Debian 12 machine, builds Quillmark, then either
# starts the application ("run") or runs every test ("test").
# Works as root or as a user with sudo rights.
set -euo pipefail

mode=${1:-}
case "$mode" in
    run|test) ;;
    *) echo "usage: $0 run|test" >&2; exit 2 ;;
esac

cd "$(dirname "$0")/.."

# poppler-utils: the printing tests read their PDFs back with pdftotext and pdftoppm;
# desktop-file-utils and appstream: the install test validates the menu entry and
# the software-centre description.
./tools/install-packages.sh build-essential cmake ninja-build qt6-base-dev qt6-qpa-plugins \
    libgtest-dev libgmock-dev libbenchmark-dev fonts-dejavu-core xvfb xauth poppler-utils \
    desktop-file-utils appstream

build=build
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
cmake --build "$build" -j "$(nproc)"

if [ "$mode" = test ]; then
    cd "$build"
    exec ctest --output-on-failure -j "$(nproc)"
fi

# Without a display (a server, a container) the window is drawn on a virtual one.
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display found: starting Quillmark under xvfb-run."
    exec xvfb-run -a "$build/src/quillmark"
fi
exec "$build/src/quillmark"
