#pragma once

#include "platform/controls/DropList.h"

#include <QtGlobal>

namespace browser {

class Frmmain;

/// Number of the recipe shown, on which every change acts: that of the selected row of the list named by Outils(2).Tag.
/// Throws std::out_of_range when no row is selected.
qint64 NumeroDeLaFiche(const Frmmain &frm);

/// Connects the value buttons of the recipe and their lists, and the two texts.
void BrancherValeurs(Frmmain &frm);

/// Lays the list of a value over Data(index).
void OuvrirValeur(Frmmain &frm, int index);

/// Stores what the list of Data(index) holds, as the user's choice for it. Throws DatabaseError for values of a
/// lookup table; for the others a failed store is silent.
void ChoisirValeur(Frmmain &frm, int index);

/// Stores Saisie(index) as it stands; silent when that fails.
void EnregistrerSaisie(Frmmain &frm, int index);

/// Lets the user choose a colour for the selection of Saisie(index); black leaves it as it is.
void ColorerSelection(Frmmain &frm, int index);

/// Hides a list after a choice; the keyboard goes back to the button that it lay over.
void FermerListe(platform::controls::DropList &liste, QWidget &bouton);

} // namespace browser
