#pragma once

#include "platform/database/Database.h"

#include <QString>

namespace store {

/// Opens the book of the program folder, exclusively and for writing, with the French collation.
///
/// It is opened for one operation and closed before the operation returns; a second open meanwhile fails. A book of an
/// older program is brought up to date first, one of a newer program is refused.
/// @throws platform::database::DatabaseError
platform::database::Database OuvrirLivre();

/// The same for a book that lies elsewhere.
/// @throws platform::database::DatabaseError
platform::database::Database OuvrirLivre(const QString &chemin);

/// Whether a file is a sound book that this program can read. It is not changed.
bool EstUnLivre(const QString &chemin);

/// What an error says of a book that does not open: where the one before the last restore is kept. Empty without one.
QString MentionDeLaCopie();

/// Begins to derive the key of the book on another thread, beside the start of the program. Never fails.
void PreparerCle();

/// Makes an empty book: the ten tables without rows.
/// @throws platform::database::DatabaseError when the file exists
void CreerLivre(const QString &chemin);

} // namespace store
