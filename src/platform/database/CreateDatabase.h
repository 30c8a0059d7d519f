#pragma once

#include <QString>

namespace platform::database {

/// Makes a new file with the tables of a schema and no rows.
///
/// @param connect as for OpenDatabase
/// @param schema  the SQL statements, run as one transaction
/// @throws DatabaseError when the file exists already, or with the engine's text; no file is left then
void CreateDatabase(const QString &name, const QString &connect, const QString &schema);

} // namespace platform::database
