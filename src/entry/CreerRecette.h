#pragma once

namespace entry {

class Manuelle;

/// Stores what is typed as a new recipe, its picture beside it. Without a title or a cooking time it says so, gives that
/// field the keyboard and stores nothing; otherwise it sets `creationFaite`. Throws DatabaseError for a failure before
/// the picture; a later one is passed over.
void CreerRecette(Manuelle &fenetre);

/// The press of the button: CreerRecette, after which the fields are emptied and a message is shown.
void PresserCreer(Manuelle &fenetre);

/// Empties all fields but the preparation time.
void ReinitChamps(Manuelle &fenetre);

} // namespace entry
