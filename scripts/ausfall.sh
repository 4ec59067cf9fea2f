#!/usr/bin/env bash
# Lets every system call fail that files are written with, and kills the program while it saves: 50 times, or
# as often as the first argument says; SAAT=7 repeats the moments of the run that said so.
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/gemeinsam.sh

pakete_installieren "${PAKETE_PROGRAMM[@]}" "${PAKETE_TEST[@]}"
konfiguriert VESK_TESTS=ON || konfigurieren VESK_TESTS=ON
bauen ausfall
bauen vesk
heim=build/release/heim/ausfall
mkdir -p "$heim"
export HOME=$PWD/$heim QT_QPA_PLATFORM=offscreen
exec build/release/fuzz/ausfall/ausfall --toetungen "${1:-50}" ${SAAT:+--seed "$SAAT"}
