#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace store {

/// Cost classes, indexed by the code that Cocktails.Cout holds. The last slot holds no class.
inline constexpr std::array<QStringView, 6> Cout{
    u"Sans Commentaire", u"Peu Cher", u"Moyen", u"Cher", u"Très Cher", u"",
};

/// Difficulty classes, indexed by the code that Cocktails.difficulte holds.
inline constexpr std::array<QStringView, 6> Difficulte{
    u"Sans Commentaire", u"Très Facile", u"Facile", u"Moyen", u"Difficile", u"Très Difficile",
};

} // namespace store
