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

/// Makes the book of the program ready for the first list: converts it where it is one of old, which is kept as
/// db-ancien.mdb, and offers the newest copy in the place of one that does not open. Throws what the conversion and the
/// replacing throw; the book is untouched then. One that does not open and stays is left to the first query.
void PreparerLivre(const browser::Frmmain &frm);

} // namespace shell
