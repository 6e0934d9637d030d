// The molecule generator: a star is one draw of an atom and one of a point of its structure.
#pragma once

#include "bodies/seed_point.h"

namespace starfolds {

/// Places a star of a molecular body. `jitter` spreads it about the structure's point (a comet's
/// nucleus sits on it exactly). A body without atoms leaves the point alone.
void SeedMolecule(SeedPoint& point, const Body& body, bool jitter);

/// Points in a triangle of n rows (n up to 99).
int TriangleNumber(int n);
/// Points in a centre and n - 1 rings about it (n up to 99).
int HexNumber(int n);

}  // namespace starfolds
