#!/usr/bin/env bash
# Watches the system calls of whole runs: the windows, and the two commands of the terminal. Fails on network
# but for the print server of this machine, on child processes, and on files outside of the program directory,
# the chosen files and the user's store; what belongs to the system may be read.
# systemrufe.sh PROGRAM RUNDGANG DATA
set -euo pipefail
programm=$1 rundgang=$2 daten=$3
strace -o /dev/null true || { echo "strace darf hier nicht zusehen." && exit 77; }

ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
mkdir -p "$ordner"/{heim,laufzeit,daten,gewaehlt,tmp}
chmod 700 "$ordner/laufzeit"
export HOME=$ordner/heim XDG_RUNTIME_DIR=$ordner/laufzeit TMPDIR=$ordner/tmp QT_QPA_PLATFORM=offscreen
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME DBUS_SESSION_BUS_ADDRESS DISPLAY WAYLAND_DISPLAY
cd "$ordner"

# zusehen NAME BEFEHL...
zusehen() {
  local name=$1
  shift
  strace -ff -y -s 300 -e trace=%file,%network,%process,openat2 -o "$ordner/$name.strace" "$@" >/dev/null
}

zusehen fenster "$rundgang" --rundgang "$ordner/daten"
zusehen rechnen "$programm" rechnen --qrg 14,2 --pwr 100
zusehen drucken "$programm" drucken --art mappe --datei "$ordner/daten/user.dat" --verzeichnis "$daten" \
  --nach "$ordner/gewaehlt/terminal.pdf"
[[ -s $ordner/gewaehlt/terminal.pdf && -s $ordner/gewaehlt/Papiere.pdf ]]

# Every call by its name, with its paths; what fails for want of the file has touched nothing.
awk -v ordner="$ordner" -v daten="$daten" -v bau="$(dirname "$programm")" '
  function glatt(pfad) {
    if (substr(pfad, 1, 1) != "/") pfad = ordner "/" pfad
    gsub(/\/+(\.\/+)*/, "/", pfad)
    while (sub(/\/[^\/]+\/\.\.(\/|$)/, "/", pfad)) {}
    if (length(pfad) > 1) sub(/\/$/, "", pfad)
    return pfad
  }
  function unter(pfad, wo) { return pfad == wo || wo == "/" || index(pfad, wo "/") == 1 }
  function eigen(pfad) { return unter(pfad, ordner) || pfad == "/dev/null" || pfad == "/dev/tty" }
  function lesbar(pfad,  i) {
    for (i in system_) if (unter(pfad, system_[i])) return 1
    return eigen(pfad) || unter(pfad, daten) || unter(pfad, bau) || unter(ordner, pfad) || unter(daten, pfad) || unter(bau, pfad)  # and what leads there
  }
  function anstoss(warum) { print FILENAME ": " warum ": " zeile; schlecht = 1 }
  BEGIN { split("/usr /lib /lib64 /bin /etc /proc /sys /dev /var/cache/fontconfig /var/lib /run", system_, " ") }
  {
    zeile = $0
    if (!match($0, /^[a-z0-9_]+\(/)) next
    ruf = substr($0, 1, RLENGTH - 1)
    ++gesehen[ruf]
    if (ruf ~ /^socket/ && $0 !~ /AF_UNIX|AF_INET6?, SOCK_STREAM/) anstoss("Netz")
    # Who prints asks the print server of this machine.
    if (ruf ~ /^(connect|bind|send)/ && /AF_INET/ && !(/^connect/ && /port=htons\(631\)/ && /"(127\.0\.0\.1|::1)"/)) anstoss("Netz")
    lauf = FILENAME
    sub(/\.[0-9]+$/, "", lauf)
    if (ruf ~ /^execve/ && ausgefuehrt[lauf]++) anstoss("Prozeß")
    if (ruf ~ /^v?fork$/ || (ruf ~ /^clone/ && $0 !~ /CLONE_THREAD/)) anstoss("Prozeß")
    if ($0 ~ /= -1 E(NOENT|NOTDIR|EXIST)/) next
    schreibt = (ruf ~ /^open/ && $0 ~ /O_(WRONLY|RDWR|CREAT|TRUNC|APPEND)/) ||
               ruf ~ /^(creat|rename|link|symlink|unlink|mkdir|rmdir|truncate|chmod|fchmodat|chown|lchown|fchownat|mknod|utime)/
    text = $0
    sub(/\) += .*/, "", text)
    if (ruf ~ /^readlink/) sub(/", ".*/, "\"", text)  # the second one is the answer
    # The directory that -y names after a descriptor belongs to the relative path behind it.
    while (match(text, /<[^>]*>, "[^\/"]/)) {
      teil = substr(text, RSTART + 1, RLENGTH - 6)
      text = substr(text, 1, RSTART - 1) ", \"" teil "/" substr(text, RSTART + RLENGTH - 1)
    }
    gsub(/<[^>]*>/, "", text)
    while (match(text, /"[^"]*"/)) {
      pfad = glatt(substr(text, RSTART + 1, RLENGTH - 2))
      text = substr(text, RSTART + RLENGTH)
      if (pfad ~ /^\/proc\/self\/fd\// || ruf ~ /^(execve|socket|connect|sendto|recv|sendmsg)/) continue
      if (schreibt && !eigen(pfad)) anstoss("schreibt")
      else if (!lesbar(pfad)) anstoss("liest")
    }
  }
  END {
    # A log without these shows that nothing was watched.
    if (!gesehen["openat"] || !gesehen["rename"] || !gesehen["execve"]) { print "Es fehlt das Protokoll."; exit 1 }
    exit schlecht
  }' "$ordner"/*.strace.*
