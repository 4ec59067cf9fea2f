# shellcheck shell=bash
# Building and running the fuzzers, for .ci/run and the nightly run. Their results lie in build/fuzz/kurz and
# build/fuzz/nacht: NAME/ the inputs kept, NAME.log what it said, NAME.crash-… an input that broke a promise.

fuzzer_bauen() {
  cmake --preset fuzz -DVESK_WERROR="${VESK_WERROR:-OFF}" >/dev/null && cmake --build --preset fuzz -- --quiet
}

# fuzzer_ergebnis NAME LOG: one line of figures. Edges are those of all that is linked into the program.
fuzzer_ergebnis() {
  sed -nE -e 's/^INFO: Loaded .*\(([0-9]+) inline 8-bit counters\).*/kanten=\1/p' \
    -e 's/^#([0-9]+)\s+DONE\s+cov: ([0-9]+) ft: ([0-9]+) corp: ([0-9]+).*/laeufe=\1 erreicht=\2 merkmale=\3 eingaben=\4/p' \
    -e 's/^Done .* in ([0-9]+) second.*/sekunden=\1/p' "$2" | tr '\n' ' ' |
    awk -v name="$1" '{
      for (i = 1; i <= NF; i++) { split($i, teil, "="); w[teil[1]] = teil[2] }
      printf "%-13s %8d Läufe, %6d/s, %5d von %5d Kanten, %6d Merkmale, %5d Eingaben\n", name, w["laeufe"],
        w["laeufe"] / (w["sekunden"] ? w["sekunden"] : 1), w["erreicht"], w["kanten"], w["merkmale"], w["eingaben"]
    }'
}

# fuzzer_lauf ART NAME LAEUFE BYTES SAAT
fuzzer_lauf() {
  local ordner=build/fuzz/$1 name=$2 programm=build/fuzz/fuzz/$2 vergleiche=1 gewichten=1 freies=16 anfang
  mkdir -p "$ordner/$name"
  anfang=$(LC_ALL=C && printf '%s,' "fuzz/corpus/$name"/*)
  # What is compared is often an address, and those differ from run to run. Much freed memory and the account of
  # how often each edge was seen cost the thick ones half of their time.
  [[ $1 == nacht ]] || vergleiche=0 gewichten=0 freies=1:thread_local_quarantine_size_kb=16
  # Half the time would go into remembering where memory came from; a run of the crash alone tells. Leaks are
  # counted at the end and not after each input.
  if ASAN_OPTIONS=malloc_context_size=0:quarantine_size_mb=$freies \
    "$programm" -runs="$3" -max_len="$4" -seed="$5" -use_cmp=$vergleiche -dict=fuzz/Woerter.dict -timeout=60 \
    -entropic=$gewichten -reload=0 -detect_leaks=0 -artifact_prefix="$ordner/$name." -seed_inputs="${anfang%,}" "$ordner/$name" &>"$ordner/$name.log"; then
    fuzzer_ergebnis "$name" "$ordner/$name.log"
  else
    tail -n 40 "$ordner/$name.log"
    echo "$name: fehlgeschlagen; $programm $ordner/$name.crash-… zeigt es noch einmal."
    return 1
  fi
}

# fuzzer_laufen kurz|nacht [NAME...]: all of them, or those; as many at a time as there are processors. The
# short run has a fixed seed, number of executions and beginning: the same tree gives the same verdict. Nights
# go on with the inputs of the night before.
fuzzer_laufen() {
  local art=$1 name kurz nacht bytes laeufe saat=1 laufend=0 ergebnis=0
  shift
  if [[ $art == kurz ]]; then rm -rf build/fuzz/kurz; else saat=${SAAT:-$RANDOM} && echo "Saat $saat"; fi
  for name in fuzz/*.cpp; do
    grep -q "^$(basename "$name" .cpp);" fuzz/Laeufe.csv || { echo "fuzz/Laeufe.csv nennt $name nicht." && ergebnis=1; }
  done
  while IFS=';' read -r name kurz nacht bytes; do
    if [[ $name == \#* || $name == name ]] || { (($#)) && [[ " $* " != *" $name "* ]]; }; then continue; fi
    if ((laufend == $(nproc))); then
      wait -n || ergebnis=1
      laufend=$((laufend - 1))
    fi
    laeufe=$kurz && [[ $art == kurz ]] || laeufe=$nacht
    fuzzer_lauf "$art" "$name" "$laeufe" "$bytes" "$saat" &
    laufend=$((laufend + 1))
  done <fuzz/Laeufe.csv
  ((laufend > 0)) || { echo "fuzz/Laeufe.csv nennt nichts davon: $*" && ergebnis=1; }
  while ((laufend-- > 0)); do wait -n || ergebnis=1; done
  return $ergebnis
}
