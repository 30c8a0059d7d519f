#pragma once

#include <QString>
#include <QStringView>
#include <QUtf8StringView>

#include <array>

namespace store {

/// A text as it goes between the quotes of a query: every ' doubled.
QString DoublerApostrophes(const QString &texte);

/// The part of a text without the blanks around it; tabs and no-break blanks belong to it.
QStringView Rogner(QStringView texte);

/// The same as a text of its own.
QString SansBlancs(QStringView texte);

namespace detail {
inline constexpr auto kPoints = [] {
    std::array<char16_t, 855> points{};
    points.fill(u'.');
    return points;
}();
} // namespace detail

/// 855 full stops: what is shown for no value and closes the choice lists. Never stored.
inline const QStringView LignePointillee(detail::kPoints.data(), qsizetype(detail::kPoints.size()));

/// The key of a row in a list: "N 12" for 12.
QString CleDeListe(qint64 numero);

/// The same in a memory of its own, for lists of thousands of rows.
class CleEcrite {
public:
    explicit CleEcrite(qint64 numero);

    QUtf8StringView Texte() const { return {m_lettres.data(), m_taille}; }

private:
    std::array<char, 24> m_lettres{'N', ' '};
    qsizetype m_taille;
};

/// The number in the key of a row: all from the second character on, trimmed. 0 for a key without a number.
qint64 NumeroDeCle(QStringView cle);

} // namespace store
