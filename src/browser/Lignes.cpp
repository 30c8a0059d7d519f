#include "Lignes.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "Valeurs.h"

#include "platform/controls/WhenPressed.h"
#include "store/AccesBase.h"
#include "store/Schema.h"
#include "store/Textes.h"

#include <array>

namespace browser {

namespace {

using namespace platform::controls;
using store::LigneIngre;

/// The three texts of an ingredient line, as the buttons show them.
struct TextesLigne {
    QString quantite, mesure, ingredient;
};

/// A line before and after a change, by the numbers of its texts.
struct ClesLignes {
    store::LigneIngre ancienne, nouvelle;
};

/// A column of the lines: its buttons, the list that all its rows share, its lookup table, and its part of a line.
struct ColonneDeLigne {
    Frmmain::Array<Ribbon> Frmmain::*boutons = nullptr;
    DropList Frmmain::*liste = nullptr;
    const store::Table *table = nullptr;
    QString TextesLigne::*texte = nullptr;
    qint64 LigneIngre::*numero = nullptr;
};

constexpr std::array kColonnesDeLigne{
    ColonneDeLigne{&Frmmain::Quantite, &Frmmain::LQuantite, &store::kQuantite, &TextesLigne::quantite,
                   &LigneIngre::quantite},
    ColonneDeLigne{&Frmmain::Mesure, &Frmmain::LMesure, &store::kMesure, &TextesLigne::mesure,
                   &LigneIngre::mesure},
    ColonneDeLigne{&Frmmain::Ingre, &Frmmain::LIngre, &store::kIngredient, &TextesLigne::ingredient,
                   &LigneIngre::ingredient},
};

qint64 Rechercher(const ColonneDeLigne &colonne, const QString &texte) {
    return store::RechercherNumero(texte == store::LignePointillee ? QStringLiteral(" ") : texte,
                                   *colonne.table)
        .value_or(0);
}

/// Finds the numbers of both lines, quantities first, then measures, then ingredients. Dots stand for the row with a
/// blank. A text that has no row gets one, also if the line is not changed afterwards. Throws DatabaseError.
ClesLignes RechercherCles(const TextesLigne &ancienne, const TextesLigne &nouvelle) {
    ClesLignes cles{};
    for (const ColonneDeLigne &colonne : kColonnesDeLigne) {
        cles.ancienne.*colonne.numero = Rechercher(colonne, ancienne.*colonne.texte);
        cles.nouvelle.*colonne.numero = Rechercher(colonne, nouvelle.*colonne.texte);
    }
    return cles;
}

TextesLigne LigneAffichee(const Frmmain &frm, int i) {
    return {frm.Quantite(i).Caption(), frm.Mesure(i).Caption(), frm.Ingre(i).Caption()};
}

void OuvrirLigne(Frmmain &frm, const ColonneDeLigne &colonne, int i) {
    frm.Scroll(0).update();
    CacherListeModif(frm);
    DropList &liste = frm.*colonne.liste;
    Ribbon &bouton = (frm.*colonne.boutons)(i);
    liste.Refresh();
    liste.SetText(bouton.Caption());
    liste.SetLeft(bouton.Left());
    liste.SetTop(bouton.Top());
    liste.SetWidth(bouton.Width());
    liste.SetTag(QString::number(i));
    liste.Open(&bouton);
}

void ChoisirLigne(Frmmain &frm, const ColonneDeLigne &colonne) {
    DropList &liste = frm.*colonne.liste;
    const int i = liste.Tag().toInt();
    Ribbon &bouton = (frm.*colonne.boutons)(i);
    if (bouton.Caption() == liste.Text()) {
        return;
    }
    const QString texte = store::SansBlancs(liste.Text());
    liste.SetText(texte);
    const qint64 recette = frm.Volet.Numero();
    const TextesLigne ancienne = LigneAffichee(frm, i);
    TextesLigne nouvelle = ancienne;
    nouvelle.*colonne.texte = texte;
    const ClesLignes cles = RechercherCles(ancienne, nouvelle);
    if (cles.ancienne != cles.nouvelle) {
        store::RemplacerLigneIngre(recette, cles.ancienne, cles.nouvelle);
    }
    MontrerValeur(bouton, texte);
    FermerListe(frm, liste, bouton);
}

} // namespace

void BrancherListesDeLigne(Frmmain &frm) {
    for (const ColonneDeLigne &colonne : kColonnesDeLigne) {
        DropList &liste = frm.*colonne.liste;
        liste.SetSource([&colonne] { return store::ChargerCombo(*colonne.table); });
        liste.SetOffersTyped(true);
        QObject::connect(&liste, &DropList::Click, &frm, [&frm, &colonne] { ChoisirLigne(frm, colonne); });
        QObject::connect(&liste, &DropList::Escaped, &frm, [&frm, &liste, &colonne] {
            FermerListe(frm, liste, (frm.*colonne.boutons)(liste.Tag().toInt()));
        });
    }
}

void BrancherLigne(Frmmain &frm, int i) {
    for (const ColonneDeLigne &colonne : kColonnesDeLigne) {
        whenPressed((frm.*colonne.boutons)(i), [&frm, &colonne, i] { OuvrirLigne(frm, colonne, i); });
    }
}

} // namespace browser
