#!/usr/bin/env bash
# Builds Vesk and runs it; installs what that needs. Arguments go to the program.
set -euo pipefail
wurzel=$(cd -P "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$wurzel/scripts/gemeinsam.sh"

( # The program itself starts in the caller's directory, so that relative paths among its arguments hold.
  cd "$wurzel"
  pakete_installieren "${PAKETE_PROGRAMM[@]}"
  if ! konfiguriert; then
    melden "Baue Vesk (beim ersten Mal einige Minuten) ..."
    # Tests and benchmarks would need their libraries; test.sh adds them to the same build directory.
    konfigurieren VESK_TESTS=OFF VESK_BENCH=OFF
  fi
  bauen vesk
)

if [[ $# -eq 0 && -z ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]]; then
  echo "Keine grafische Anzeige gefunden, daher ein Beispiel auf der Kommandozeile (14,2 MHz, 100 W):"
  set -- rechnen --qrg 14,2 --pwr 100 --gewinn 0 --daempfung 0 --winkel 0 --faktor 1 --typ AM
fi
exec "$wurzel/build/release/vesk" "$@"
