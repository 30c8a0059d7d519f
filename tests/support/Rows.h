#pragma once

#include "store/Livre.h"

#include <QStringList>

/// The rows of a query of the book, each its first columns with "|" between them; Null as "-".
inline QStringList rowsOf(const QString &query, int columns) {
    auto book = store::OuvrirLivre();
    QStringList all;
    for (auto row = book.OpenRecordset(query); !row.AtEnd(); row.MoveNext()) {
        QStringList texts;
        for (int column = 0; column < columns; ++column) {
            texts += row.Fields(column).IsNull() ? QStringLiteral("-") : row.Fields(column).Text();
        }
        all += texts.join(u'|');
    }
    return all;
}

/// A lookup table: "1|text, 2|text".
inline QString tableOf(const QString &table) {
    return rowsOf(QStringLiteral("SELECT * From ") + table, 2).join(QStringLiteral(", "));
}
