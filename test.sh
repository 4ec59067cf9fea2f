#!/usr/bin/env bash
# Builds everything and runs all tests; installs what that needs. Arguments go to ctest (e.g. -R Zahlen).
set -euo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")"
source scripts/gemeinsam.sh

pakete_installieren "${PAKETE_PROGRAMM[@]}" "${PAKETE_TEST[@]}"
optionen=(VESK_TESTS=ON VESK_BENCH=ON ${VESK_WERROR:+"VESK_WERROR=$VESK_WERROR"})
if ! konfiguriert "${optionen[@]}"; then
  melden "Baue Vesk und seine Tests (beim ersten Mal einige Minuten) ..."
  konfigurieren "${optionen[@]}"
fi
bauen all
exec ctest --preset release -j "$(nproc)" "$@"
