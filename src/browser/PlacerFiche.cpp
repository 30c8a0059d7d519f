#include "Fiche.h"
#include "Frmmain.h"
#include "TableDesValeurs.h"

#include <algorithm>
#include <vector>

namespace browser {

namespace {

using namespace platform::controls;

constexpr Twips kEntreLignes{200};
constexpr Twips kBordCadre{150};

/// The widths of the detail and its two columns, from the width of the panel.
void Aligner(Frmmain &frm) {
    const Twips largeur = frm.Scroll(0).Width();
    const auto jusquauBord = [largeur](const auto &controle) {
        return largeur - controle.Left() - kMargeFiche;
    };

    frm.Ingre.ForEach([&](Ribbon &bouton) { bouton.SetWidth(jusquauBord(bouton)); });
    frm.Saisie.ForEach([&](RichTextBox &saisie) { saisie.SetWidth(jusquauBord(saisie)); });
    frm.CadrePhoto.SetWidth(largeur - 2 * frm.CadrePhoto.Left() - kMargeFiche + kBordCadre);
    frm.CadrePhoto.SetHeight(3 * (frm.CadrePhoto.Width() / 5));

    const Twips gauche = frm.Libelle(kValeurs.front().libelle).Left();
    const Twips demi = IntegerHalf(largeur - kMargeFiche) - 2 * gauche;
    for (const Valeur &valeur : kValeurs) {
        if (valeur.cadrage == Cadrage::Fixe) {
            continue;
        }
        Ribbon &bouton = valeur.Bouton(frm);
        if (valeur.cadrage != Cadrage::JusquauBord) {
            const bool aGauche = valeur.cadrage == Cadrage::MoitieGauche;
            bouton.SetLeft(aGauche ? gauche : gauche + demi + 2 * gauche);
            frm.Libelle(valeur.libelle).SetLeft(bouton.Left());
        }
        bouton.SetWidth(valeur.cadrage == Cadrage::MoitieGauche ? demi : jusquauBord(bouton));
        valeur.Liste(frm).SetWidth(bouton.Width());
    }
}

/// Places a control directly under its title; gives where it ends.
template <class Controle>
Twips PlacerSous(Twips haut, Label &titre, Controle &controle) {
    titre.SetTop(haut);
    controle.SetTop(titre.Bottom());
    return controle.Bottom();
}

/// Places the values line by line under what ends at bas; gives where the last line ends.
Twips RangerValeurs(Frmmain &frm, Twips bas) {
    Twips haut;
    int ligne = -1;
    for (const Valeur &valeur : kValeurs) {
        if (valeur.ligne != ligne) {
            ligne = valeur.ligne;
            haut = bas + kMargeFiche;
        }
        bas = std::max(bas, PlacerSous(haut, frm.Libelle(valeur.libelle), valeur.Bouton(frm)));
    }
    return bas;
}

/// Stacks the ingredient rows under their title; gives where the last one ends.
Twips RangerLignes(Frmmain &frm, Twips haut) {
    frm.Libelle(0).SetTop(haut);
    Twips ligne = frm.Libelle(0).Bottom();
    for (int i = 0; i < frm.Ingre.Count(); ++i) {
        for (Ribbon *bouton : {&frm.Quantite(i), &frm.Mesure(i), &frm.Ingre(i)}) {
            bouton->SetTop(ligne);
        }
        ligne = frm.Ingre(i).Bottom() + kEntreLignes;
    }
    return frm.Ingre(frm.Ingre.Count() - 1).Bottom();
}

/// Tab goes through the detail in reading order, also through rows made later.
void OrdonnerTabulation(Frmmain &frm) {
    std::vector<QWidget *> ordre;
    for (const Valeur &valeur : kValeurs) {
        ordre.push_back(&valeur.Bouton(frm));
    }
    for (int i = 0; i < frm.Ingre.Count(); ++i) {
        ordre.insert(ordre.end(), {&frm.Quantite(i), &frm.Mesure(i), &frm.Ingre(i)});
    }
    for (const TexteLong &texte : kTextesLongs) {
        ordre.push_back(&frm.Saisie(texte.saisie));
    }
    for (std::size_t i = 1; i < ordre.size(); ++i) {
        QWidget::setTabOrder(ordre[i - 1], ordre[i]);
    }
}

} // namespace

void PlacerFiche(Frmmain &frm) {
    frm.Scroll(0).SetScrollableHeight(kMargeFiche);
    Aligner(frm);
    Twips bas = RangerValeurs(frm, frm.CadrePhoto.Bottom());
    bas = RangerLignes(frm, bas + kMargeFiche);
    bas = std::max(bas, frm.CadrePhoto.Bottom());
    for (const TexteLong &texte : kTextesLongs) {
        bas = PlacerSous(bas + kMargeFiche, frm.Libelle(texte.libelle), frm.Saisie(texte.saisie));
    }
    frm.Scroll(0).SetScrollableHeight(bas + kMargeFiche);
    OrdonnerTabulation(frm);
}

} // namespace browser
