#pragma once

namespace webimport::facile {

class Facile;

/// The event of the button Analyse: reads the page shown into the fields, fetches its picture and shows the recipe. The
/// program's events run meanwhile, but for the user's. A page that does not answer is reported, and stays.
/// @throws ErreurExecution for a page that breaks the rules of its layout
void PresserAnalyse(Facile &fenetre);

/// Empties the fields but for the address of the picture, and leaves one row of ingredients.
void ViderChamps(Facile &fenetre);

} // namespace webimport::facile
