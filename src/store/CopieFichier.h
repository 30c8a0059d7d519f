#pragma once

#include <QString>

#include <stdexcept>

namespace store {

/// A file that could not be copied or replaced; what() is the platform's text, in UTF-8.
class CopieError : public std::runtime_error {
public:
    explicit CopieError(const QString &texte) : std::runtime_error(texte.toUtf8().toStdString()) {}
};

/// Copies a file over another one or to a new place. The destination is complete and on disk when this returns; after a
/// failure it is what it was. To be called for a book only while it is closed. Throws CopieError.
void CopierFichier(const QString &source, const QString &destination);

/// Whether a path leads to the book itself, under whatever name.
bool EstLeLivre(const QString &chemin);

/// Copies the book, after a change that was killed half-way is undone. Throws CopieError.
void CopierLivre(const QString &destination);

/// Name beside the book under which a new one is made ready; a leftover of an earlier run is removed.
QString CheminNouveauLivre();

/// The book that RemplacerLivre keeps when an older one is restored, beside the book.
QString CheminAvantRestauration();

/// Puts the complete book at CheminNouveauLivre in the place of the present one, of which a copy is kept first at the
/// path given. At every moment there is one whole book or the other. Throws CopieError; the new book is gone then.
void RemplacerLivre(const QString &copie);

} // namespace store
