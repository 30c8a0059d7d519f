#!/usr/bin/env bash
# Makes the GIF pictures of the demonstration site, assets/facile/images and photos, from their drawings. Nothing in
# the build writes this format, so the pictures are kept beside the drawings. Needs ImageMagick and what ./run installs.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset release >/dev/null
cmake --build --preset release --target rendu -- --quiet
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for drawing in assets/facile/dessins/gif/*.svg; do
    name=$(basename "$drawing" .svg)
    size=$(sed -nE 's/^<svg .* width="([0-9]+)" height="([0-9]+)".*/\1x\2/p' "$drawing")
    folder=images
    if [ "$size" = 1000x600 ]; then
        size=400x240
        folder=photos
    fi
    mkdir -p "assets/facile/$folder"
    XDG_RUNTIME_DIR=$scratch build/tools/rendu/rendu "$drawing" "$scratch/$name.png" "$size"
    convert "$scratch/$name.png" +dither -colors 64 "assets/facile/$folder/$name.gif"
done
