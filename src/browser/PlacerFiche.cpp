#include "Fiche.h"
#include "Frmmain.h"

#include <algorithm>

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
    const Twips gauche = frm.Libelle(7).Left();
    const Twips demi = IntegerHalf(largeur - kMargeFiche) - 2 * gauche;
    for (Ribbon *bouton : {&frm.Data(6), &frm.Data(0)}) {
        bouton->SetLeft(gauche);
        bouton->SetWidth(demi);
    }
    frm.LCategorie.SetWidth(demi);
    frm.LVerre.SetWidth(demi);
    frm.Libelle(1).SetLeft(gauche);
    frm.Saisie.ForEach([&](RichTextBox &saisie) { saisie.SetWidth(jusquauBord(saisie)); });
    frm.CadrePhoto.SetWidth(largeur - 2 * frm.CadrePhoto.Left() - kMargeFiche + kBordCadre);
    frm.CadrePhoto.SetHeight(3 * (frm.CadrePhoto.Width() / 5));

    const Twips seconde = gauche + demi + 2 * gauche;
    frm.Libelle(5).SetLeft(seconde);
    frm.Libelle(2).SetLeft(seconde);
    frm.Data(5).SetLeft(seconde);
    frm.Data(1).SetLeft(seconde);
    for (Ribbon *bouton : {&frm.Data(5), &frm.Data(1), &frm.Data(4)}) {
        bouton->SetWidth(jusquauBord(*bouton));
    }
    frm.LDureeReal.SetWidth(frm.Data(5).Width());
    frm.LMateriel.SetWidth(frm.Data(1).Width());
    frm.LTeneur.SetWidth(frm.Data(4).Width());
}

/// Places title labels on one line and their values directly under them; gives where the values end.
template <class Valeur>
Twips Rangee(Twips haut, std::initializer_list<std::pair<Label *, Valeur *>> couples) {
    Twips bas;
    for (const auto &[titre, valeur] : couples) {
        titre->SetTop(haut);
        valeur->SetTop(titre->Bottom());
        bas = std::max(bas, valeur->Bottom());
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
    std::vector<QWidget *> ordre{&frm.Data(6), &frm.Data(5), &frm.Data(0), &frm.Data(1),
                                 &frm.Data(2), &frm.Data(3), &frm.Data(4)};
    for (int i = 0; i < frm.Ingre.Count(); ++i) {
        ordre.insert(ordre.end(), {&frm.Quantite(i), &frm.Mesure(i), &frm.Ingre(i)});
    }
    ordre.insert(ordre.end(), {&frm.Saisie(0), &frm.Saisie(1)});
    for (std::size_t i = 1; i < ordre.size(); ++i) {
        QWidget::setTabOrder(ordre[i - 1], ordre[i]);
    }
}

} // namespace

void PlacerFiche(Frmmain &frm) {
    frm.Scroll(0).SetScrollableHeight(kMargeFiche);
    Aligner(frm);
    using Couple = std::pair<Label *, Ribbon *>;
    const auto titre = [&frm](int index) { return &frm.Libelle(index); };
    const auto valeur = [&frm](int index) { return &frm.Data(index); };

    Twips bas = frm.CadrePhoto.Bottom();
    bas = Rangee<Ribbon>(bas + kMargeFiche, {Couple(titre(7), valeur(6)), Couple(titre(5), valeur(5))});
    bas = Rangee<Ribbon>(bas + kMargeFiche, {Couple(titre(1), valeur(0)), Couple(titre(2), valeur(1))});
    bas = Rangee<Ribbon>(bas + kMargeFiche, {Couple(titre(8), valeur(2)), Couple(titre(9), valeur(3)),
                                             Couple(titre(10), valeur(4))});
    bas = RangerLignes(frm, bas + kMargeFiche);
    bas = std::max(bas, frm.CadrePhoto.Bottom());
    bas = Rangee<RichTextBox>(bas + kMargeFiche, {{titre(3), &frm.Saisie(0)}});
    bas = Rangee<RichTextBox>(bas + kMargeFiche, {{titre(4), &frm.Saisie(1)}});
    frm.Scroll(0).SetScrollableHeight(bas + kMargeFiche);
    OrdonnerTabulation(frm);
}

} // namespace browser
