#pragma once

namespace browser {

class Frmmain;

/// Connects the three lists of the lines.
void BrancherListesDeLigne(Frmmain &frm);

/// Connects the buttons of line i.
void BrancherLigne(Frmmain &frm, int i);

} // namespace browser
