#pragma once

#include "platform/database/Database.h"

namespace store {

/// Gives an open book of another version what it lacks: tables, columns at the end of tables, indexes. All of it is there
/// afterwards, or the book is what it was.
/// @throws platform::database::DatabaseError for a book of a newer program, a file without recipes, and a table whose
///         columns are others than ours
void MettreAJour(platform::database::Database &livre);

} // namespace store
