#!/usr/bin/env bash
# The window served by VNC, for a program that does nothing: who reaches it, and that nothing is left of it.
set -euo pipefail
racine=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd -P)

TMPDIR=$(mktemp -d)
export TMPDIR
trap 'rm -rf -- "$TMPDIR"' EXIT

echec() {
    printf 'FAIL: %s\n' "$*" >&2
    exit 1
}

# servir SECONDS: serves a program that runs as long; sets script, port and secret.
servir() {
    : >"$TMPDIR/dit"
    "$racine/scripts/vnc.sh" sleep "$1" 2>"$TMPDIR/dit" &
    script=$!
    until IFS=' ' read -r port secret < <(sed -n 's/.*127\.0\.0\.1:\([0-9]*\) .* \([^ ]*\)$/\1 \2/p' "$TMPDIR/dit"); do
        kill -0 "$script" 2>/dev/null || echec "not served: $(cat "$TMPDIR/dit")"
        sleep 0.1
    done
}

# lire N: the next N bytes of the server, in hexadecimal.
lire() { head -c "$1" <&3 | od -An -v -tx1 | tr -d ' \n'; }

# fini CODE: waits for the script, which must end with this code and leave nothing.
fini() {
    local code=0
    wait "$script" || code=$?
    [ "$code" = "$1" ] || echec "ended with $code instead of $1: $(cat "$TMPDIR/dit")"
    [ "$(ls "$TMPDIR")" = dit ] || echec "left behind: $(ls "$TMPDIR")"
    ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null || echec "the server goes on"
}

servir 60
premier=$secret
[ "$(stat -c %a "$TMPDIR"/tmp.*)" = 700 ] || echec "others can open the folder of the password"
! (exec 3<>"/dev/tcp/127.0.0.2/$port") 2>/dev/null || echec "other machines reach the server"
exec 3<>"/dev/tcp/127.0.0.1/$port"
[ "$(lire 12)" = 524642203030332e3030380a ] || echec "no server of RFB 3.8"
printf 'RFB 003.008\n' >&3
[ "$(lire 2)" = 0102 ] || echec "something else is asked for than the password alone"
printf '\2' >&3
lire 16 >/dev/null
printf '0123456789abcdef' >&3
[ "$(lire 4)" = 00000001 ] || echec "a wrong password is let in"
exec 3>&-
mapfile -t -d ' ' enfants <"/proc/$script/task/$script/children"
for enfant in "${enfants[@]}"; do
    if [ "$(cat "/proc/$enfant/comm")" = Xtigervnc ]; then
        kill "$enfant"
        break
    fi
done
fini 69

servir 1
[ "$secret" != "$premier" ] || echec "two starts have one password"
fini 0
