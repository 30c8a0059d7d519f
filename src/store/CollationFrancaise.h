#pragma once

#include "platform/database/Collation.h"

#include <string_view>

namespace store {

/// Order of two French texts (UTF-8), independent of the system's libraries: without regard to case; first by
/// base letters, where é counts as e and œ as oe, then, if these are equal, letter by letter by code point,
/// so that é and e differ but stand together: pate < pâte < pâté < pates. Blanks count everywhere.
int ComparerFrancais(std::string_view gauche, std::string_view droite);

/// Appends bytes in the order of ComparerFrancais; equal texts give equal bytes.
void AjouterCleDeTri(std::string_view texte, QByteArray &cles);

inline constexpr platform::database::Collation kCollationFrancaise{ComparerFrancais, AjouterCleDeTri};

} // namespace store
