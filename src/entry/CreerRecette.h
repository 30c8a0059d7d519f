#pragma once

namespace entry {

class Manuelle;

/// Stores what is typed as a new recipe, its picture beside it. Without a title or a cooking time it tells so, gives
/// the keyboard to that field and stores nothing; else `creationFaite` is set. Throws DatabaseError for a failure before
/// the picture; one behind it is passed over.
void CreerRecette(Manuelle &fenetre);

/// The press of the button: CreerRecette, and after it emptied fields and a message.
void PresserCreer(Manuelle &fenetre);

/// Empties all fields but the preparation time.
void ReinitChamps(Manuelle &fenetre);

} // namespace entry
