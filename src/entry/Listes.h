#pragma once

class QWidget;

namespace entry {

class Manuelle;

/// The drop lists of the window: each opens exactly over the field that the user goes to, takes the keyboard, and what
/// is typed or chosen in it goes into the field at once. It stays open until another field is entered.

/// Fills the lists of the upper fields. Throws DatabaseError.
void ChargerLesListesCombo(Manuelle &fenetre);

/// Fills the lists of the ingredient lines. Throws DatabaseError.
void ChargerListesDesLignes(Manuelle &fenetre);

/// Hides all lists; the field beneath one that has the keyboard takes it.
void CacherListes(Manuelle &fenetre);

/// Hides those of the ingredient lines.
void CacherListesDesLignes(Manuelle &fenetre);

/// Connects the fields and their lists.
void BrancherListes(Manuelle &fenetre);

/// The control that has the keyboard; for a list the field that it serves.
QWidget *ChampAuClavier(Manuelle &fenetre);

} // namespace entry
