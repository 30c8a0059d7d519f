#include "Vocabulary.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {
const QString kBlank = u" "_s;
}

Vocabulary::Vocabulary(const QString &folder, const store::Table &table) : m_table(table) {
    // The look-ups of the program do not tell capitals from small letters.
    QSet<QString> seen;
    for (const SourceText &line : readLines(folder + u'/' + table.nom.toString().toLower() + u".txt")) {
        if (line.text.isEmpty() || line.text.startsWith(u'#')) {
            continue;
        }
        if (line.text.contains(u'<')) {
            throw SourceError(line, u"a text with markup would appear in no choice list"_s);
        }
        const QString folded = line.text.toCaseFolded();
        if (seen.contains(folded)) {
            throw SourceError(line, u"\"%1\" is there already"_s.arg(line.text));
        }
        seen.insert(folded);
        add(line.text);
    }
}

int Vocabulary::numberOf(const SourceText &text) const {
    const auto found = m_numbers.constFind(text.text);
    if (found == m_numbers.cend()) {
        throw SourceError(text, u"\"%1\" is not in the vocabulary %2"_s.arg(text.text, m_table.nom));
    }
    return *found;
}

int Vocabulary::numberOfBlank() {
    if (!m_numbers.contains(kBlank)) {
        add(kBlank);
    }
    return m_numbers.value(kBlank);
}

void Vocabulary::add(const QString &text) {
    m_texts.append(text);
    m_numbers.insert(text, static_cast<int>(m_texts.size()));
}
