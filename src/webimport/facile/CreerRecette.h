#pragma once

namespace webimport::facile {

class Facile;

/// The event of the button Creer: stores the recipe, and goes back to the page when that is done. When a field is
/// missing the button stays down, so that the next press only releases it.
/// @throws DatabaseError, pictures::PhotoError
void PresserCreer(Facile &fenetre);

} // namespace webimport::facile
