#pragma once

#include <QString>

/// Where the book is made from, and where it goes.
struct BookPlaces {
    QString sources;  ///< folder with vocabulaires/ and recettes/
    QString pictures; ///< folder with a JPEG file for each drawing
    QString output;   ///< folder that gets db.mdb and photos/
};

/// Makes the book from its source texts. Those of an earlier run are replaced.
/// @throws SourceError for a mistake in the texts; the output folder is untouched then
/// @throws std::exception when the book cannot be written
void writeBook(const BookPlaces &places);
