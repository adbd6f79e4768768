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

# Grid, dialog-button and editor-tool icons are PNG; every other icon is a
# Windows icon (.ico) with several sizes in one file.
is_ico() {
    case "$1" in
        tableview-* | icon-tableview-* | icon-camera | icon-allgemein-* | icon-marker-[0-9] | icon-fotoeditor-*) return 1 ;;
        *) return 0 ;;
    esac
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

# The resource list: every rendered icon under ":/KalMainWindow/Resources/",
# the window icon under ":/KalDatabase/". File names on disk are ASCII; the
# alias carries the program's own name.
{
    echo '<RCC>'
    echo '  <qresource prefix="/KalMainWindow">'
    for f in "$out"/*; do
        name=$(basename "$f")
        [ "$name" = "Pellwick.ico" ] && continue
        alias=$(printf '%s' "$name" | sed -e 's/datei-oeffnen/datei-öffnen/' -e 's/icon-liste-drucken-lang/icon-liste drucken lang/')
        echo "    <file alias=\"Resources/$alias\">$out/$name</file>"
    done
    echo '    <file alias="Resources/pellwick.png">pellwick.png</file>'
    echo '  </qresource>'
    echo '  <qresource prefix="/KalDatabase">'
    echo "    <file alias=\"Pellwick.ico\">$out/Pellwick.ico</file>"
    echo '  </qresource>'
    echo '</RCC>'
} > icons.qrc
