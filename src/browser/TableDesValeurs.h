#pragma once

#include "Frmmain.h"

#include "store/Schema.h"
#include "store/Vocabulaires.h"

#include <algorithm>
#include <array>
#include <span>

namespace browser {

/// How a choice is stored: as the number of a row of the lookup table that the column refers to, or as itself where it
/// refers to none; as the row's place in a fixed vocabulary; or as a wine advice, which is shown before it is stored.
enum class Forme { Recherche, Code, Vin };

/// When the list takes the text of its button.
enum class TexteDeListe { AOuverture, AAffichage, LesDeux };

/// What Enter in the edit box does.
enum class Entree { Confirme, SansEffet };

/// How a value lies in its line on the page: in the left or right half, from its own place to the right edge, or as the
/// window's table of controls says. Its list has the same width.
enum class Cadrage { MoitieGauche, MoitieDroite, JusquauBord, Fixe };

/// A value of a recipe on its button: the column, Data(data) and its title Libelle(libelle), the list that lies over
/// the button while the value is changed, the line on the page.
struct Valeur {
    store::ChampRecette champ{};
    int data = 0;
    int libelle = 0;
    platform::controls::DropList Frmmain::*liste = nullptr;
    int ligne = 0;
    Cadrage cadrage = Cadrage::Fixe;
    Forme forme = Forme::Recherche;
    TexteDeListe texte = TexteDeListe::AOuverture;
    Entree entree = Entree::Confirme;
    /// Of a code; an empty class of it is not offered.
    std::span<const QStringView> vocabulaire{};

    /// The lookup table of the value; null where it has none.
    constexpr const store::Table *Table() const { return store::Description(champ).reference; }

    platform::controls::Ribbon &Bouton(Frmmain &frm) const { return frm.Data(data); }

    platform::controls::DropList &Liste(Frmmain &frm) const { return frm.*liste; }
};

/// In reading order.
inline constexpr std::array kValeurs{
    Valeur{store::ChampRecette::NCategorie, 6, 7, &Frmmain::LCategorie, 0, Cadrage::MoitieGauche,
           Forme::Recherche, TexteDeListe::LesDeux},
    Valeur{store::ChampRecette::NDureeReal, 5, 5, &Frmmain::LDureeReal, 0, Cadrage::MoitieDroite,
           Forme::Recherche, TexteDeListe::AOuverture},
    Valeur{store::ChampRecette::Nverre, 0, 1, &Frmmain::LVerre, 1, Cadrage::MoitieGauche, Forme::Recherche,
           TexteDeListe::AAffichage},
    Valeur{store::ChampRecette::Nreal, 1, 2, &Frmmain::LMateriel, 1, Cadrage::MoitieDroite, Forme::Recherche,
           TexteDeListe::AAffichage},
    Valeur{store::ChampRecette::Cout, 2, 8, &Frmmain::LCout, 2, Cadrage::Fixe, Forme::Code,
           TexteDeListe::AOuverture, Entree::SansEffet, store::Cout},
    Valeur{store::ChampRecette::difficulte, 3, 9, &Frmmain::LDiff, 2, Cadrage::Fixe, Forme::Code,
           TexteDeListe::AOuverture, Entree::SansEffet, store::Difficulte},
    Valeur{store::ChampRecette::Teneur, 4, 10, &Frmmain::LTeneur, 2, Cadrage::JusquauBord, Forme::Vin},
};

/// The value in that column of a recipe; a column that is no value does not compile.
consteval const Valeur &ValeurDe(store::ChampRecette champ) {
    return *std::ranges::find(kValeurs, champ, &Valeur::champ);
}

/// A text of a recipe: the column, the box Saisie(saisie), its title Libelle(libelle).
struct TexteLong {
    store::ChampRecette champ{};
    int saisie = 0;
    int libelle = 0;
};

inline constexpr TexteLong kPreparation{store::ChampRecette::preparation, 0, 3};
inline constexpr TexteLong kComplements{store::ChampRecette::Deco, 1, 4};
inline constexpr std::array kTextesLongs{kPreparation, kComplements};

} // namespace browser
