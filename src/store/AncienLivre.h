#pragma once

#include <QString>

#include <functional>

namespace store {

/// True for a file that begins as an old book does: a Jet 3 or Jet 4 file. It may be damaged further on.
///
/// Only for a file that this process has not open: closing it here would drop the locks on it.
bool EstAncienLivre(const QString &chemin);

/// Gets, several times a second, how many of how many rows are converted; the total is 0 until it is known.
/// What it throws ends the conversion.
using ProgressionConversion = std::function<void(qint64 faites, qint64 total)>;

/// Makes a new book of an old one, whole and on disk when it returns.
///
/// The ten tables are taken over, column by name and row by row in the order of the file, so that the lines of a
/// recipe are read as they were. A column that the old book lacks stays Null; tables and columns that ours lacks are
/// left out. A text in a column of numbers becomes the number that it spells, or else Null. A row of a table
/// with a key that has none, or one that an earlier row has, gets the next free number, so that nothing is lost.
///
/// The reader of old books lies in the program's folder.
///
/// @param source      the old book, with any password or none; it is not changed
/// @param destination the new book; its file must not exist
/// @throws platform::jet::JetError for a file that cannot be read or lacks one of the tables, platform::database::DatabaseError for one that
///         cannot be written, and what the progression throws; no file is left at the destination then
void ConvertirAncienLivre(const QString &source, const QString &destination,
                          const ProgressionConversion &progression = {});

} // namespace store
