#!/usr/bin/env bash
# assemble.sh BUILD FOLDER: makes or renews the program's folder. The program and its pictures are renewed,
# pictures are never removed, and a data file already there keeps every row of its user.
set -euo pipefail
build=$1
folder=$2
mkdir -p "$folder/images" "$folder/HELP"
# A program that is running keeps its own copy: the new one takes the name.
for program in quiverdeck quiverdeck-backup; do
    install -m 755 "$build/src/$program" "$folder/$program.new"
    mv -f "$folder/$program.new" "$folder/$program"
done
cp -ru "$build/images/." "$folder/images/"
[ -d "$build/HELP" ] && cp -ru "$build/HELP/." "$folder/HELP/"
if [ ! -e "$folder/splash.ps" ]; then
    cp "$build/splash.ps" "$folder/splash.ps.new"
    mv "$folder/splash.ps.new" "$folder/splash.ps"
else
    "$build/data/quiverdeck-renew-store" "$build/splash.ps" "$folder/splash.ps"
fi
