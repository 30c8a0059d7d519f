#!/usr/bin/env bash
# Makes the pictures of docs/pictures/ from the book as delivered. Needs what ./run has installed, and no display.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/paquets.sh

cmake --preset release >/dev/null
cmake --build --preset release --target captures livraison_neuve -- --quiet
mkdir -p docs/pictures
isoler_le_navigateur
LC_ALL=C.UTF-8 build/tools/captures/captures build/livraison docs/pictures
