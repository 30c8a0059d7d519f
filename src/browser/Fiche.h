#pragma once

#include "platform/geometry/Twips.h"

#include <QString>

namespace browser {

class Frmmain;

/// Between the rows of the detail and at its right and lower edge.
inline constexpr platform::geometry::Twips kMargeFiche{400};

/// Shows the recipe of that number in the detail; false when there is none, and the controls keep what they held. Throws
/// DatabaseError, and std::out_of_range for a cost or difficulty outside its vocabulary.
bool ChargerRecette(Frmmain &frm, qint64 numero);

/// Shows the ingredient lines of a recipe, a row of three buttons for each and a dotted one behind them. A
/// line that cannot be read leaves a gap.
void AfficherIngredients(Frmmain &frm, qint64 numero);

/// Stacks the controls of the detail in Scroll(0).
void PlacerFiche(Frmmain &frm);

/// Has the drop lists of the detail filled from their tables, each when its rows are first asked for, and sets their
/// texts.
void ChargerLesListesCombo(Frmmain &frm);

/// Hides the drop lists of the detail.
void CacherListeModif(Frmmain &frm);

} // namespace browser
