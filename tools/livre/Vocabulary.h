#pragma once

#include "SourceText.h"

#include "store/Schema.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// The texts of one lookup table. The number of a text is its place from 1, as it stands in the source file:
/// one text a line; empty lines and lines that begin with "#" do not count.
class Vocabulary {
public:
    /// @param folder holds a file with the name of the table in small letters, plus ".txt"
    /// @throws SourceError, also for a text that differs from an earlier one in its case only
    Vocabulary(const QString &folder, const store::Table &table);

    const store::Table &table() const { return m_table; }

    const QStringList &texts() const { return m_texts; }

    /// The number of a text in the spelling of the vocabulary.
    /// @throws SourceError when it is not there
    int numberOf(const SourceText &text) const;

    /// The number of the row that stands for no value, a single blank; it is appended when first asked for.
    int numberOfBlank();

private:
    void add(const QString &text);

    const store::Table &m_table;
    QStringList m_texts;
    QHash<QString, int> m_numbers; ///< by text
};
