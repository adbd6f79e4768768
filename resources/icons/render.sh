#!/bin/sh
# Renders the icon sources in svg/ into the files the program compiles in
# (rendered/). Needs rsvg-convert (librsvg2-bin) and ImageMagick's convert.
# The rendered files are committed, so building needs neither tool.
set -eu
cd "$(dirname "$0")"
out=rendered
mkdir -p "$out"
tmp=$(mktemp -d)
trap 'rm -rf "$tmp"' EXIT

# Icons the program loads as Windows icons (.ico, several sizes in one file).
ico_icons="datei-neu datei-oeffnen datei-speichern datei-speichern-als datei-recent
icon-add-defect icon-datei-datenbank icon-help icon-help-off
icon-datenimport-automatisch-ein icon-datenimport-automatisch-aus
icon-defect-editor icon-status-editor"

is_ico() {
    for n in $ico_icons; do [ "$n" = "$1" ] && return 0; done
    return 1
}

for svg in svg/*.svg; do
    name=$(basename "$svg" .svg)
    if is_ico "$name"; then
        for s in 16 24 32 48; do
            rsvg-convert -w $s -h $s "$svg" -o "$tmp/$name-$s.png"
        done
        convert "$tmp/$name-16.png" "$tmp/$name-24.png" "$tmp/$name-32.png" "$tmp/$name-48.png" "$out/$name.ico"
    else
        rsvg-convert -w 32 -h 32 "$svg" -o "$out/$name.png"
    fi
done

# Application icon: window icon and desktop integration.
rsvg-convert -w 256 -h 256 pellwick.svg -o pellwick.png
for s in 16 32 48 256; do
    rsvg-convert -w $s -h $s pellwick.svg -o "$tmp/pellwick-$s.png"
done
convert "$tmp/pellwick-16.png" "$tmp/pellwick-32.png" "$tmp/pellwick-48.png" "$tmp/pellwick-256.png" "$out/Pellwick.ico"
