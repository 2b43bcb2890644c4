#!/usr/bin/env bash
# screens.sh BUILD: renews docs/screens from two tours, at 1024 x 768 and at 1920 x 1080: every screen passed, and each
# window alone for the guide. To be run, and the pictures looked at, when the look has changed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
build=$1
for size in 1024x768 1920x1080; do
    tests/tour/tour "$build" "build/screens-$size" "$size"
    mkdir -p "docs/screens/$size"
    find "docs/screens/$size" -name '*.png' ! -name avvio.png -delete # the splash is taken by hand
    for picture in "build/screens-$size"/[0-9]*.png; do
        name=$(basename "$picture")
        convert "$picture" -colors 64 -depth 8 -strip "PNG8:docs/screens/$size/${name#[0-9][0-9]-}"
    done
done
for picture in build/screens-1024x768/finestre/*.png; do
    convert "$picture" -colors 128 -depth 8 -strip "PNG8:docs/screens/$(basename "$picture")"
done
# The sheet as the printer gets it.
convert build/screens-1024x768/foglio-1.png -colors 128 -depth 8 -strip PNG8:docs/screens/foglio.png
