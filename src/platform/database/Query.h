#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace platform::database {

/// The parts of "SELECT * From table [where condition] [order by column [asc|desc]]", in UTF-8.
struct TableQuery {
    QByteArray table;
    QByteArray condition;
    QByteArray orderColumn;
    bool descending = false;
};

/// Reads a query of this form, without regard to case; nothing for any other.
std::optional<TableQuery> parseTableQuery(const QString &sql);

/// "DELETE * FROM ..." without the star; any other statement as it is.
QString withoutDeleteStar(const QString &sql);

/// A name in double quotes.
QByteArray quotedName(const QByteArray &name);

} // namespace platform::database
