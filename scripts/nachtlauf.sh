#!/usr/bin/env bash
# The nightly run: every fuzzer with the executions that fuzz/Laeufe.csv says, or only those that are named; then
# clang-tidy with every path through the code.
# scripts/nachtlauf.sh [NAME...]; SAAT=7 repeats the choices of the night that said so.
set -uo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/.." || exit
source scripts/gemeinsam.sh
source scripts/fuzzer.sh

pakete_installieren "${PAKETE_PROGRAMM[@]}" "${PAKETE_TEST[@]}" git clang-14 clang-tidy-14 libclang-rt-14-dev
ergebnis=0
fuzzer_bauen && fuzzer_laufen nacht "$@" || ergebnis=1
(($#)) && exit $ergebnis
konfiguriert VESK_TESTS=ON || konfigurieren VESK_TESTS=ON
bauen all
# Of two empty outlines Boost.Geometry makes a union by an unset figure; it is never given any there.
boost=station/Flaechen.cpp
tidy_quellen=('*.cpp' ":!$boost")
clang_tidy || ergebnis=1
tidy_quellen=("$boost")
clang_tidy --checks=-clang-analyzer-core.uninitialized.Assign || ergebnis=1
exit $ergebnis
