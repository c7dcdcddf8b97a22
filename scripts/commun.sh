# shellcheck shell=bash
# Set-up shared by run, test and .ci/run; they source it.
#
# All that is said here goes to stderr: stdout belongs to the program that is started.
# With nothing to do it must stay cheap, for it stands in front of every start.

racine=$(CDPATH='' cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

# Qt wants UTF-8; a bare server or container has the locale "C".
[ "$(locale charmap 2>/dev/null)" = UTF-8 ] || export LC_ALL=C.UTF-8

dire() { printf '%s\n' "$*" >&2; }

# The set-up ends with a code of its own: those of the programs that it starts mean something else.
echouer() {
    dire "$*"
    exit 69
}

# paquets_manquants LIST...: the packages of the lists that are not installed, one a line.
paquets_manquants() {
    local voulus
    mapfile -t voulus < <(sed -E 's/#.*//; s/[[:space:]]//g; /^$/d' "${@/#/$racine/}" | sort -u)
    comm -23 <(printf '%s\n' "${voulus[@]}") \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${voulus[@]}" 2>/dev/null |
            sed -n 's/^installed //p' | sort -u)
}

# installer_paquets LIST...: installs what is missing of them.
installer_paquets() {
    if ! command -v dpkg-query >/dev/null; then
        dire "Ce système n'a pas les paquets de Debian : les équivalents de $* doivent être là."
        return
    fi

    local manquants en_root=()
    mapfile -t manquants < <(paquets_manquants "$@")
    [ ${#manquants[@]} -gt 0 ] || return 0

    dire "Paquets à installer : ${manquants[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        if command -v sudo >/dev/null; then
            en_root=(sudo)
        elif command -v pkexec >/dev/null; then
            en_root=(pkexec)
        else
            echouer "Il faut les droits de root pour les installer, et ni sudo ni pkexec n'est là ;" \
                "lancez en root : apt-get install --no-install-recommends ${manquants[*]}"
        fi
    fi

    local apt=("${en_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y
        -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300)
    # One unreachable source among several must not stop what the others can supply.
    "${apt[@]}" update >&2 || dire "La liste des paquets n'a pas pu être mise à jour ; essai avec l'ancienne."
    "${apt[@]}" install --no-install-recommends "${manquants[@]}" >&2 ||
        echouer "L'installation des paquets a échoué ; elle se fait à la main, en root, par :" \
            "apt-get install --no-install-recommends ${manquants[*]}"
}

# construire PRESET [TARGET...]: configures build/PRESET when needed and builds what has changed of the targets,
# or of everything.
construire() {
    local preset=$1 dossier=$racine/build/$1 repere etat
    shift
    mkdir -p "$dossier" || echouer "Le dossier $dossier ne peut pas être créé."

    # Two builds in one folder would spoil it; the second one waits.
    exec 9>"$dossier/.verrou"
    flock 9

    # Ninja sees every change but two: new presets, and a source folder that was moved or copied.
    repere=$(printf '%s\n' "$racine" && cat "$racine/CMakePresets.json")
    if [ ! -f "$dossier/build.ninja" ] || [ "$repere" != "$(cat "$dossier/.configuration" 2>/dev/null)" ]; then
        rm -f "$dossier/.configuration"
        (cd "$racine" && cmake --fresh --preset "$preset") >&2 || echouer "La configuration a échoué."
        printf '%s\n' "$repere" >"$dossier/.configuration"
    fi

    # A dry run first, so that a start with nothing to build is silent.
    etat=$(ninja -C "$dossier" -n "$@" 2>&1) || true
    case $etat in
    *"no work to do"*) ;;
    *) ninja -C "$dossier" "$@" >&2 || echouer "La compilation a échoué." ;;
    esac

    # Closed before a program starts, which would hold it as long as it runs.
    exec 9>&-
}

# tester PRESET [OPTION...]: builds, then runs all tests, or those that CTest's options choose.
tester() {
    local preset=$1
    shift
    construire "$preset"
    (cd "$racine" && ctest --preset "$preset" --parallel "$(nproc)" "$@")
}
