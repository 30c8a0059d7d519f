#pragma once

#include "platform/controls/ListView.h"

#include <QString>

namespace browser {

class Frmmain;

/// What the entries of the popup menus do. They act on the list named by Outils(2).Tag and throw DatabaseError, and
/// std::out_of_range when it has no selected row.

/// Whether the rows of Liste can be renamed and deleted; those of a fixed vocabulary cannot.
bool RangeesModifiables();

/// Turns what the entries do to Liste.
void ViserHaut(Frmmain &frm);

/// Does what an entry does to the selected row of a list, if there is one that can be changed.
void AgirSurRangee(Frmmain &frm, platform::controls::List &liste, void (*acte)(Frmmain &));

/// Whether something can be added to that list.
bool PeutAjouter(const Frmmain &frm);

/// Asks for a new value of the view and adds it; where the rows are recipes, raises CreationDemandee.
void AjouterRangee(Frmmain &frm);

/// Opens the editor of the selected row.
void ModifierRangee(Frmmain &frm);

/// Deletes the selected row when the user confirms: a recipe, or a value that has no recipe in the lower list.
void SupprimerRangee(Frmmain &frm);

/// Lets the user choose another picture for the recipe; in the view of the recipes only.
void ModifierPhoto(Frmmain &frm);

/// Takes the picture from the recipe when the user confirms; the file stays.
void SupprimerPhoto(Frmmain &frm);

/// A click on the photo: as ModifierPhoto, in every view.
void ClicCadrePhoto(Frmmain &frm);

/// A file was dropped onto the photo: as if it had been chosen after a click.
void DeposerPhoto(Frmmain &frm, const QString &fichier);

} // namespace browser
