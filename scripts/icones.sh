#!/usr/bin/env bash
# Draws the PNG icons anew from the two SVG files, after one of them was changed. Needs librsvg2-bin.
set -euo pipefail
. "$(dirname -- "$(readlink -f -- "${BASH_SOURCE[0]}")")/commun.sh"

icones=$racine/data/icons/hicolor

# dessiner SVG SIZE...
dessiner() {
    local dessin=$1 cote
    shift
    for cote in "$@"; do
        mkdir -p "$icones/${cote}x$cote/apps"
        rsvg-convert -w "$cote" -h "$cote" "$dessin" -o "$icones/${cote}x$cote/apps/das-korvandel.png"
    done
}

dessiner "$racine/data/das-korvandel-petit.svg" 16 22 24
dessiner "$icones/scalable/apps/das-korvandel.svg" 32 48 64 128 256 512
