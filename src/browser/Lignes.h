#pragma once

#include "store/AccesBase.h"

#include <QString>

namespace browser {

class Frmmain;

/// The three texts of an ingredient line, as the buttons show them.
struct TextesLigne {
    QString quantite, mesure, ingredient;
};

/// A line before and after a change, by the numbers of its texts.
struct ClesLignes {
    store::LigneIngre ancienne, nouvelle;
};

/// Finds the numbers of both lines, quantities first, then measures, then ingredients. Dots stand for the row with a
/// blank. A text that has no row gets one, also if the line is not changed afterwards. Throws DatabaseError.
ClesLignes RechercherCles(const TextesLigne &ancienne, const TextesLigne &nouvelle);

/// Connects the three lists of the lines.
void BrancherListesDeLigne(Frmmain &frm);

/// Connects the buttons of line i.
void BrancherLigne(Frmmain &frm, int i);

} // namespace browser
