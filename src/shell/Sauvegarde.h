#pragma once

namespace browser {
class Frmmain;
}

namespace shell {

/// Saves a copy of the book where the user says. Throws store::CopieError.
void SauvegarderBase(browser::Frmmain &frm);

/// Puts a file that the user chooses in the place of the book, converted if it is an old book, and loads the lists
/// again. A file that cannot be copied is passed over in silence; one that cannot be converted is reported.
void RestaurerBase(browser::Frmmain &frm);

/// Converts the book of the program if it is a Jet file, which is kept as db-ancien.mdb, or under the next number
/// where there is one already. Throws what the conversion throws; the book is untouched then.
void ReprendreAncienLivre(const browser::Frmmain &frm);

} // namespace shell
