#pragma once

namespace browser {
class Frmmain;
}

namespace search {

class FrmFind;

/// Makes the table of Opt_Liste(index) the one that is searched; only recipes can be restricted by cost and difficulty.
void ChoisirTable(FrmFind &fenetre, int index);

/// Searches as the controls say and lists the rows found. Throws DatabaseError.
void Rechercher(FrmFind &fenetre);

/// Brings the selected row up in the main window, in the view of what was searched.
/// Throws std::out_of_range when no row is selected or the main window no longer has it, and DatabaseError.
void MontrerResultat(FrmFind &fenetre, browser::Frmmain &frm);

} // namespace search
