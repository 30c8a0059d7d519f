#include "Categories.h"

#include "Nombres.h"
#include "Positions.h"

#include <algorithm>
#include <array>

namespace webimport {

namespace {

struct CategorieSite {
    int groupe = 0; ///< number of the partner site
    QStringView categorie;
};

constexpr std::array<CategorieSite, 14> CategoriesSite{{
    {27, u"Céréales"},
    {30, u"Conserves / Confitures"},
    {25, u"Crustacés"},
    {20, u"Desserts"},
    {16, u"Gibiers"},
    {18, u"Légumes"},
    {19, u"Mollusques"},
    {9, u"Poissons"},
    {17, u"Volailles"},
    {15, u"Viandes"},
    {23, u"Sandwichs"},
    {34, u"Sauces"},
    {29, u"Enfants"},
    {54, u"Cocktails & Alcools"},
}};

constexpr QStringView kGroupe = u"&groupid=";
constexpr qsizetype kChiffresDuGroupe = 2;

} // namespace

QStringView CategorieDeLAdresse(QStringView adresse) {
    const qsizetype g = Position(adresse, kGroupe);
    if (g == 0) {
        return {};
    }
    const double groupe = LireNombre(Extrait(adresse, g + kGroupe.size(), kChiffresDuGroupe));
    const auto *const trouvee =
        std::find_if(CategoriesSite.begin(), CategoriesSite.end(),
                     [groupe](const CategorieSite &c) { return double(c.groupe) == groupe; });
    return trouvee == CategoriesSite.end() ? QStringView() : trouvee->categorie;
}

} // namespace webimport
