#!/usr/bin/env bash
# Builds what needs no Qt for Windows, vesk-rechnen.exe included, and runs its tests under Wine, without a display;
# installs what that needs. Arguments go to ctest.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/gemeinsam.sh

pakete_installieren cmake ninja-build g++-mingw-w64-x86-64-posix libgtest-dev libboost1.74-dev \
  nlohmann-json3-dev wine64
frisch=()
grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" build/windows/CMakeCache.txt || frisch=(--fresh)
cmake --preset windows "${frisch[@]}" ${VESK_WERROR:+"-DVESK_WERROR=$VESK_WERROR"} >/dev/null
if ! cmake --build --preset windows | fortschritt; then
  melden "Der Bau ist fehlgeschlagen."
  exit 1
fi

unset DISPLAY WAYLAND_DISPLAY
export WINEPREFIX=$PWD/build/windows/wine WINESERVER=/usr/lib/wine/wineserver64 WINEDEBUG=-all
# Wine shall ask for no components of its own and add nothing to the desktop's menu.
export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
/usr/lib/wine/wine64 wineboot --init
trap '"$WINESERVER" --kill || true' EXIT
ctest --preset windows -j "$(nproc)" "$@"
