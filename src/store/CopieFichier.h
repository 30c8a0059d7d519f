#pragma once

#include "platform/files/WholeFile.h"

#include <QString>
#include <QStringList>

namespace store {

/// A file that could not be copied or replaced.
using CopieError = platform::files::FileError;

/// The rights of the book, which no copy and no photo exceeds; all where there is no book.
platform::files::Rights DroitsDuLivre();

/// Copies a file over another one or to a new place. The destination is complete and on disk when this returns; after a
/// failure it is what it was. It gets the rights of the book, but no more than a file that it takes the place of. To be
/// called for a book only while it is closed. Throws CopieError.
void CopierFichier(const QString &source, const QString &destination);

/// Whether a path leads to the book itself, under whatever name.
bool EstLeLivre(const QString &chemin);

/// Copies the book, after a change that was killed half-way is undone. Throws CopieError.
void CopierLivre(const QString &destination);

/// Name beside the book under which a new one is made ready; a leftover of an earlier run is removed.
QString CheminNouveauLivre();

/// The book that RemplacerLivre keeps when an older one is restored, beside the book. Whatever has this name opened as
/// a book.
QString CheminAvantRestauration();

/// Puts the complete book at CheminNouveauLivre in the place of the present one and gives it its rights. The present
/// one is kept: a book as CheminAvantRestauration, one of old as db-ancien.mdb, and a file that does not open as
/// db-illisible.mdb, these two under the next number where another file has the name. At every moment there is one whole
/// book or the other. Throws CopieError; the new book is gone then.
void RemplacerLivre();

/// The newest copy that opens as a book, and that could take the place of one that does not; empty where there is none.
QString CopieAReprendre();

/// Removes what acts that were killed have left beside the book.
void OterRestes();

} // namespace store
