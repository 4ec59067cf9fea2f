#!/usr/bin/env bash
# Builds the Debian package build/release/vesk_*.deb; installs what that needs. With --pruefen it also checks the
# package: its texts and tables with Debian's own checkers, and the program in a bare Debian 12, where it is
# installed, used and removed. That needs root and the package source of this machine.
set -eEuo pipefail
cd -P "$(dirname "${BASH_SOURCE[0]}")/.."
source scripts/gemeinsam.sh

PAKETE_PAKET=(dpkg-dev file gzip)
PAKETE_PRUEFUNG=(bsdextrautils lintian desktop-file-utils appstream man-db shared-mime-info mmdebstrap xvfb x11-utils)
SCHLUESSEL=/usr/share/keyrings/debian-archive-keyring.gpg
arbeit=$PWD/build/paket
wurzel=$arbeit/debian12

# schritt NAME BEFEHL...: the first failure ends the script.
schritt() {
  local beginn=$SECONDS
  schritt=$1
  shift
  "$@"
  melden "== $schritt: $((SECONDS - beginn)) s"
}
trap 'melden "Fehlgeschlagen: ${schritt:-Vorbereitung}, Zeile $LINENO: $BASH_COMMAND"' ERR
trap '[[ -z ${XVFB_PID:-} ]] || kill "$XVFB_PID"' EXIT

paket_bauen() {
  # shellcheck disable=SC2119
  konfiguriert || konfigurieren VESK_TESTS=OFF VESK_BENCH=OFF
  bauen all
  rm -f build/release/vesk_*.deb
  (cd build/release && cpack -G DEB >cpack.log 2>&1) || { cat build/release/cpack.log && return 1; }
  paket=$(echo "$PWD"/build/release/vesk_*.deb)
}

texte_pruefen() {
  rm -rf "$arbeit/inhalt"
  dpkg-deb -x "$paket" "$arbeit/inhalt"
  local teile=$arbeit/inhalt/usr/share warnungen handbuch option
  lintian --allow-root --fail-on error,warning "$paket"
  desktop-file-validate --warn-kde "$teile/applications/vesk.desktop"
  appstreamcli validate --no-net --pedantic "$teile/metainfo/de.vesk.vesk.metainfo.xml"
  warnungen=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$teile/man/man1/vesk.1.gz" 2>&1 >/dev/null)
  [[ -z $warnungen ]] || { echo "$warnungen" && return 1; }
  handbuch=$(man -E UTF-8 -l "$teile/man/man1/vesk.1.gz" | col -b)
  for option in $(build/release/vesk --help | grep -o -e '--[a-z]\+' | sort -u); do
    grep -q -e "$option" <<<"$handbuch" || { melden "Im Handbuch fehlt $option." && return 1; }
  done
  XDG_DATA_DIRS=$teile update-mime-database "$teile/mime"
  grep -q ':application/x-vesk-winkel:\*\.ang$' "$teile/mime/globs2"
}

# The package sources of Debian 12 that this machine uses, as lines of a sources.list.
quellen() {
  apt-get indextargets --format "\$(CODENAME) deb [signed-by=$SCHLUESSEL] \$(REPO_URI) \$(RELEASE) \$(COMPONENT)" \
    'Created-By: Packages' 'Origin: Debian' "Architecture: $(dpkg --print-architecture)" | sed -n 's/^bookworm[^ ]* //p'
}

debian_aufsetzen() {
  [[ -n $(quellen) ]] || { melden "In /etc/apt steht keine Quelle von Debian 12." && return 1; }
  rm -rf "$wurzel"
  # Proxies and the like hold inside, too.
  apt-config dump Acquire >"$arbeit/apt.conf"
  quellen | mmdebstrap --quiet --variant=minbase --mode=root --aptopt="$arbeit/apt.conf" bookworm "$wurzel" -
  cp "$arbeit/apt.conf" "$wurzel/etc/apt/apt.conf.d/99wirt"
  cp --remove-destination -L /etc/resolv.conf "$wurzel/etc/resolv.conf"
  drinnen useradd --create-home funker
  drinnen install -d -o funker -m 700 /run/funker
}

# drinnen BEFEHL...: as root in the bare system, with mounts and processes that end with the command.
drinnen() {
  # shellcheck disable=SC2016  # expanded by the inner shell
  unshare --mount --pid --fork --kill-child bash -c '
    mount -t proc proc "$0/proc" &&
      exec env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$0" "$@"
  ' "$wurzel" "$@"
}

# funker [NAME=WERT...] BEFEHL...: as an ordinary user.
funker() {
  drinnen runuser -u funker -- env -C /home/funker HOME=/home/funker XDG_RUNTIME_DIR=/run/funker "$@"
}

apt_drinnen() {
  drinnen apt-get -y -qq -o Dpkg::Use-Pty=0 "$@" >>"$arbeit/apt.log" 2>&1 ||
    { tail -n 20 "$arbeit/apt.log" && return 1; }
}

# What the system consists of, but for the users' files and what any package leaves behind.
bestand() {
  local ausser=() pfad
  for pfad in home tmp run var/log var/cache var/lib/apt 'var/lib/dpkg/*-old'; do
    ausser+=(-path "./$pfad" -prune -o)
  done
  (cd "$wurzel" && find . -xdev "${ausser[@]}" -type f -exec md5sum {} + -o -printf '%y %p %l\n' | sort)
}

einspielen() {
  cp "$paket" "$wurzel/tmp/vesk.deb"
  : >"$arbeit/apt.log"
  apt_drinnen update
  apt_drinnen install --no-install-recommends /tmp/vesk.deb
  # Once more, now that the libraries are there: what changes from here on is this package alone. Both ways of
  # taking it away leave the same, as it has no configuration files.
  apt_drinnen purge vesk
  bestand >"$arbeit/ohne"
  apt_drinnen install --no-install-recommends /tmp/vesk.deb
  bestand >"$arbeit/mit"
}

# fenster [NAME=WERT...] BEFEHL...: the window has to stay open until it is told to go, and go then.
fenster() {
  local ergebnis=0
  funker timeout -k 5 4 env "$@" || ergebnis=$?
  ((ergebnis == 124))
}

benutzen() {
  local eigene=.local/share/Vesk/Vesk bildschirm
  [[ $(funker vesk --version) == "Vesk $(dpkg-deb -f "$paket" Version)" ]]
  funker vesk rechnen --qrg 14,2 --pwr 100 --gewinn 2,15 | grep -q 'Sicherheitsabstand'
  fenster QT_QPA_PLATFORM=offscreen vesk
  funker test -s "$eigene/user.dat" -a -s "$eigene/Kabel.txt"
  funker vesk drucken --art mappe --datei "$eigene/user.dat" --nach mappe.pdf
  [[ $(head -c 5 "$wurzel/home/funker/mappe.pdf") == %PDF- ]]

  # A real X server, outside: its socket has no place in the file system.
  coproc XVFB { exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -ac 2>/dev/null; }
  # shellcheck disable=SC2153
  read -r bildschirm <&"${XVFB[0]}"
  funker cp "$eigene/user.dat" "$eigene/DL1ABC.dat"
  fenster "DISPLAY=:$bildschirm" vesk "$eigene/DL1ABC.dat" &
  sleep 3
  xwininfo -display ":$bildschirm" -root -tree | grep -q 'DL1ABC.dat": ("vesk" "Vesk")'
  wait $!
  kill "$XVFB_PID"

  bestand | diff "$arbeit/mit" -
}

entfernen() {
  apt_drinnen remove vesk
  bestand | diff "$arbeit/ohne" -
  [[ -z $(find "$wurzel" -xdev -path "$wurzel/home" -prune -o -path "$wurzel/tmp" -prune -o -iname '*vesk*' -print) ]]
  [[ -z $(drinnen dpkg --audit) ]]
  # What the user has entered is his.
  [[ -s $wurzel/home/funker/.local/share/Vesk/Vesk/user.dat ]]
}

pakete_installieren "${PAKETE_PROGRAMM[@]}" "${PAKETE_PAKET[@]}"
schritt "Paket bauen" paket_bauen
if [[ ${1:-} == --pruefen ]]; then
  ((EUID == 0)) || { melden "--pruefen braucht root." && exit 1; }
  pakete_installieren "${PAKETE_PRUEFUNG[@]}"
  mkdir -p "$arbeit"
  schritt "Texte und Tabellen" texte_pruefen
  schritt "Debian 12 aufsetzen" debian_aufsetzen
  schritt "Einspielen" einspielen
  schritt "Benutzen" benutzen
  schritt "Entfernen" entfernen
  rm -rf "$arbeit"
fi
echo "$paket"
