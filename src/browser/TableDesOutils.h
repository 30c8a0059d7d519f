#pragma once

#include "store/Configuration.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace browser {

/// The tools of the toolbar; each has the number of its Outils(n) and LBtn(n).
enum class Outil {
    CreationManuelle,
    CreationFacile,
    Fiches,
    Acquisition,
    Recherche,
    Sauvegarde,
    Restauration,
    SitePartenaire,
    SiteAuteur,
    APropos,
    Aide,
};

inline constexpr std::size_t kNombreOutils = static_cast<std::size_t>(Outil::Aide) + 1;

/// How a tool looks: the text of its panel, its tool tip, what it does in the words of a status line, and the name of
/// its drawing in assets/icones. What a press does stands in shell/Commandes.cpp, which does not compile while it lacks a tool.
struct AspectOutil {
    Outil outil{};
    std::u16string_view legende{}, bulle{}, phrase{};
    std::string_view dessin{};
};

inline constexpr std::array<AspectOutil, kNombreOutils> kAspects{{
    {Outil::CreationManuelle, u"Création manuelle", u"Ajouter manuellement une recette",
     u"Créer une nouvelle recette ", "outil-0"},
    {Outil::CreationFacile, u"Création facile", u"Ajouter une recette avec " SAVOREL_PARTENAIRE,
     u"Ajouter des nouvelles recettes à partir du site " SAVOREL_PARTENAIRE_ACCUEIL, "outil-1"},
    {Outil::Fiches, u"Fiches de recettes", u"Consulter les fiches", u"Imprimer les recettes ", "outil-2"},
    {Outil::Acquisition, u"Acquisition des images", u"Acquérir une image", u"Acquérir de nouvelles images ",
     "outil-3"},
    {Outil::Recherche, u"Recherche multicritères", u"Rechercher une recette",
     u"Rechercher une recette avec plusieurs critères ", "outil-4"},
    {Outil::Sauvegarde, u"Sauvegarde", u"Sauvegarder la base", u"Sauvegarder la base ", "outil-5"},
    {Outil::Restauration, u"Restauration", u"Restaurer une base", u"Restaurer une ancienne base ", "outil-6"},
    {Outil::SitePartenaire, u"Site du          partenaire", u"Visiter le site de " SAVOREL_PARTENAIRE,
     u"Visiter le site de notre partenaire " SAVOREL_PARTENAIRE, "outil-7"},
    {Outil::SiteAuteur, u"Site de l'auteur", u"Visiter le site de l'auteur", u"Visiter le site de l'auteur ",
     "outil-8"},
    {Outil::APropos, u"A Propos", u"A Propos", u"A Propos ...", "outil-9"},
    {Outil::Aide, u"Aide", u"Aide", u"Aide de Savorel ... ", "outil-10"},
}};

static_assert(std::ranges::all_of(kAspects,
                                  [](const AspectOutil &aspect) {
                                      return &aspect == &kAspects[static_cast<std::size_t>(aspect.outil)] &&
                                             !aspect.legende.empty() && !aspect.bulle.empty() &&
                                             !aspect.phrase.empty() && !aspect.dessin.empty();
                                  }),
              "a tool is missing, out of order, or without one of its texts");

} // namespace browser
