#!/usr/bin/env bash
# icon_sizes.sh: draws packaging/icons/SIZE.png from packaging/starfolds.svg. Small icons get larger
# stars, which would be dim otherwise. Needs librsvg2-bin.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")"
mkdir -p icons
for size in 16 22 24 32 48 64 96 128 192 256 512; do
  radius=0.8
  ((size > 32)) || radius=1.3
  sed "s/ r=\"0.8\"/ r=\"$radius\"/" starfolds.svg |
    rsvg-convert --width "$size" --height "$size" --output "icons/$size.png"
done
