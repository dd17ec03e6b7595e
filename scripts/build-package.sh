#!/usr/bin/env bash
# make package: builds the Debian package torvanbridge_VERSION_ARCH.deb in build-package/
# (a build folder of its own, installed under /usr), then checks it with lintian and
# prints the findings. The tools it needs are installed first when missing.
#
#   scripts/build-package.sh [BUILD_DIR]
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$top/build-package}
jobs=${JOBS:-$(nproc 2>/dev/null || echo 2)}

# dpkg-shlibdeps (dpkg-dev) derives the dependencies from the linked libraries; lintian
# checks the result; the two validators check the desktop entry and the metainfo.
"$top/scripts/install-deps.sh" dpkg-dev file lintian desktop-file-utils appstream

launcher=()
command -v ccache >/dev/null && launcher=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
cmake -S "$top" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DTB_BUILD_TESTS=OFF "${launcher[@]}" >/dev/null
cmake --build "$build" -j "$jobs"
(cd "$build" && cpack -G DEB >/dev/null)
deb=$(ls -t "$build"/torvanbridge_*.deb | head -n 1)
echo "package: $deb"
dpkg-deb --field "$deb" Package Version Architecture Depends

desktop-file-validate "$top/desktop/com.brenholt.Torvanbridge.desktop"
appstreamcli validate --no-net "$build/desktop/com.brenholt.Torvanbridge.metainfo.xml"

echo "lintian:"
lintian --tag-display-limit 0 "$deb" || true
