# shellcheck shell=bash
# What start.sh, test.sh and .ci/run share: the tables of Debian packages and the build of preset release.

# shellcheck disable=SC2034  # the tables are read by the scripts that source this file
PAKETE_PROGRAMM=(
  g++ cmake ninja-build                # compiler and build
  qt6-base-dev                         # windows, printing; brings the X11 platform plugin
  libboost1.74-dev                     # areas of the plan
  nlohmann-json3-dev                   # the plan as a file
  libqpdf-dev                          # title, author and bookmarks of the PDFs
  qt6-wayland                          # platform plugin for desktops without X11
  qt6-translations-l10n                # German texts of the toolkit's own dialogs and menus
  fonts-dejavu-core fonts-liberation2  # dialog font; metric-compatible Arial for the printed pages
)
# shellcheck disable=SC2034
PAKETE_TEST=(
  libgtest-dev libbenchmark-dev
  strace  # what the program asks of the system
)

# Without a UTF-8 locale Qt complains and file names with umlauts are lost.
[[ $(locale charmap 2>/dev/null) == UTF-8 ]] || export LC_ALL=C.UTF-8

melden() {
  printf '%s\n' "$*" >&2
}

# pakete_installieren PAKET...: installs those that are missing, as root or through sudo; without the right to
# do so it names them and ends the script.
pakete_installieren() {
  local vorhanden paket fehlend=() als_root=() protokoll=build/pakete.log
  vorhanden=$(dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null) || true
  for paket in "$@"; do
    grep -qxF "installed $paket" <<<"$vorhanden" || fehlend+=("$paket")
  done
  ((${#fehlend[@]})) || return 0

  if ((EUID != 0)); then
    # sudo may ask for a password only where somebody can type one.
    if command -v sudo >/dev/null && { sudo -n true 2>/dev/null || { [[ -t 0 ]] && sudo -v; }; }; then
      als_root=(sudo)
    else
      melden "Es fehlen Pakete, und zum Installieren fehlt das Recht (root oder sudo). Bitte installieren lassen:"
      melden "  apt-get install --no-install-recommends ${fehlend[*]}"
      exit 1
    fi
  fi
  melden "Installiere fehlende Pakete: ${fehlend[*]}"
  mkdir -p build
  # A package source that cannot be reached is no reason to give up: the lists at hand may do.
  "${als_root[@]}" apt-get update >"$protokoll" 2>&1 || true
  if ! "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
    -o DPkg::Lock::Timeout=120 "${fehlend[@]}" >>"$protokoll" 2>&1 </dev/null; then
    tail -n 15 "$protokoll" >&2
    melden "Die Pakete ließen sich nicht installieren (alles Weitere in $protokoll): ${fehlend[*]}"
    exit 1
  fi
}

# konfiguriert NAME=WERT...: whether build/release is ready, belongs to this place (the tree may have been
# moved), and has these options.
konfiguriert() {
  local cache=build/release/CMakeCache.txt option
  [[ build/release/build.ninja -nt CMakePresets.json ]] || return 1
  grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" "$cache" || return 1
  for option in "$@"; do
    grep -qxF "${option%%=*}:BOOL=${option#*=}" "$cache" || return 1
  done
}

# konfigurieren NAME=WERT...
konfigurieren() {
  local frisch=(--fresh)
  if grep -qsxF "CMAKE_HOME_DIRECTORY:INTERNAL=$PWD" build/release/CMakeCache.txt; then frisch=(); fi
  cmake --preset release "${frisch[@]}" "${@/#/-D}" >/dev/null
}

# fortschritt: of the build's output the steps as one counting line on a terminal, everything else as it is.
fortschritt() {
  local zeile gezaehlt=
  while IFS= read -r zeile; do
    case $zeile in
      'ninja: no work to do.') ;;
      \[*/*\]\ *) [[ ! -t 2 ]] || { gezaehlt=ja && printf '\r%s] ' "${zeile%%]*}" >&2; } ;;
      *) printf '%s\n' "$zeile" ;;
    esac
  done
  [[ -z $gezaehlt ]] || echo >&2
}

# bauen ZIEL
bauen() {
  if ! cmake --build --preset release -t "$1" | fortschritt; then
    melden "Der Bau ist fehlgeschlagen."
    exit 1
  fi
}

# clang_tidy [SWITCH...]: the product. Headers are read through the sources that include them. Those for Windows
# need the headers of its compiler. It cannot read what another compiler has precompiled.
tidy_quellen=('*.cpp')
clang_tidy() {
  cmake --preset release -B build/tidy -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DVESK_TESTS=OFF -DVESK_BENCH=OFF \
    >/dev/null || return
  git ls-files -z -- "${tidy_quellen[@]}" ':!fuzz' ':!tests' ':!bench' ':!*Windows.cpp' |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/tidy "$@" 2> >(grep -v 'warnings\? generated' >&2)
}
