#!/usr/bin/env bash
# vnc.sh PROGRAM [ARGUMENT...]: shows a program where there is no display, on a VNC server of its own.
#
# The window holds the data of persons. So the server is reached from this machine alone, with a password made for
# this one start; and the key of its screen lies, with the password, in a folder that only the user can open and
# that goes at the end. Server and program end together, whichever ends first.
set -euo pipefail
. "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/commun.sh"
umask 077

[ $# -gt 0 ] || echouer "usage : vnc.sh PROGRAMME [ARGUMENT...]"

prive=$(mktemp -d)
serveur='' programme=''
# shellcheck disable=SC2317 # the traps reach it
finir() {
    local processus
    for processus in $programme $serveur; do
        kill "$processus" 2>/dev/null || true
        wait "$processus" 2>/dev/null || true
    done
    rm -rf -- "$prive"
}
trap finir EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# port_libre: the first VNC port at which nothing answers.
port_libre() {
    local port
    for port in {5900..5999}; do
        if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
            echo "$port"
            return
        fi
    done
    echouer "Les ports 5900 à 5999 sont tous pris."
}

# Eight characters are all that VNC looks at; none of these is taken for another.
secret=$(head -c 1024 /dev/urandom | LC_ALL=C tr -dc 'a-km-np-z2-9' | cut -c 1-8)
tigervncpasswd -f >"$prive/secret" <<<"$secret"

# The server looks at the key alone, so it is filed before the number of the screen is known.
cle=$(mcookie)
: >"$prive/autorite"
xauth -qf "$prive/autorite" add :0 . "$cle"

port=$(port_libre)
mkfifo "$prive/ecran"
# When this script is killed outright, the server goes too, and the program with its screen.
setpriv --pdeathsig TERM Xtigervnc -displayfd 7 -rfbport "$port" -localhost -SecurityTypes VncAuth \
    -rfbauth "$prive/secret" -auth "$prive/autorite" -nolisten tcp -geometry 1280x800 -depth 24 \
    -desktop 'DAS KORVANDEL' 7>"$prive/ecran" >"$prive/journal" 2>&1 &
serveur=$!
if ! read -r -t 30 ecran <"$prive/ecran"; then
    dire "Le serveur VNC n'a pas démarré :"
    echouer "$(cat "$prive/journal")"
fi
xauth -qf "$prive/autorite" add ":$ecran" . "$cle"
export DISPLAY=:$ecran XAUTHORITY=$prive/autorite QT_QPA_PLATFORM=xcb

# Without a window manager no window gets the keys, and a box can't be moved.
matchbox-window-manager >>"$prive/journal" 2>&1 &

dire "Aucun affichage (ni DISPLAY ni WAYLAND_DISPLAY) : la fenêtre est servie par VNC, sur cette machine seulement." \
    "Adresse : 127.0.0.1:$port  Mot de passe : $secret"
"$@" &
programme=$!

code=0
wait -n -p fini "$programme" "$serveur" || code=$?
[ "$fini" = "$programme" ] || echouer "Le serveur VNC s'est arrêté, et la fenêtre avec lui."
exit "$code"
