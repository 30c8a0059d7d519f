#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace store {

/// Cost classes, indexed by the code that Cocktails.Cout holds. The last slot has never held a class.
inline constexpr std::array<QStringView, 6> Cout{
    u"Sans Commentaire", u"Peu Cher", u"Moyen", u"Cher", u"Très Cher", u"",
};

/// Difficulty classes, indexed by the code that Cocktails.difficulte holds.
inline constexpr std::array<QStringView, 6> Difficulte{
    u"Sans Commentaire", u"Très Facile", u"Facile", u"Moyen", u"Difficile", u"Très Difficile",
};

/// Alcohol levels, of the time when the schema held cocktails. The column Teneur holds wine numbers instead.
inline constexpr std::array<QStringView, 7> Teneur{
    u"Sans Commentaire", u"Sans Alcool", u"Très Faible", u"Faible", u"Moyen", u"Fort", u"Très Fort",
};

namespace detail {
inline constexpr auto kPoints = [] {
    std::array<char16_t, 855> points{};
    points.fill(u'.');
    return points;
}();
} // namespace detail

/// 855 full stops: what is shown for no value and closes the choice lists. Never stored.
inline const QStringView LignePointillee(detail::kPoints.data(), qsizetype(detail::kPoints.size()));

} // namespace store
