#include "Vues.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "TableDesVues.h"

#include "platform/controls/WaitPointer.h"
#include "platform/settings/Conversion.h"
#include "store/AccesBase.h"
#include "store/Livre.h"
#include "store/Reglages.h"
#include "store/Textes.h"

namespace browser {

namespace {

using namespace platform::controls;

// In every lookup table the text column has the name of the table.
QString ChampTexte(int vue, const QString &table) {
    return vue == 0 ? QStringLiteral("Recette") : table;
}

constexpr Twips kHauteurSeule{8300};
constexpr Twips kHauteurHaute{3920};
constexpr Twips kHauteurBasse{4000};
constexpr Twips kHautBasse{6405};

void PlacerListes(Frmmain &frm, int vue) {
    if (vue == 0) {
        frm.Liste.SetHeight(kHauteurSeule);
        frm.LTCentre2.hide();
        frm.LFilms.hide();
        return;
    }
    frm.LFilms.Clear();
    frm.Liste.SetHeight(kHauteurHaute);
    frm.LFilms.SetHeight(kHauteurBasse);
    frm.LFilms.SetTop(kHautBasse);
    frm.LFilms.show();
}

void OuvrirPanneau(Frmmain &frm) {
    frm.Chargement.raise();
    frm.Pb.SetFloodPercent(0);
    frm.Chargement.show();
    frm.Chargement.repaint();
}

void AjouterVocabulaire(Frmmain &frm, int vue) {
    List::Loading lignes(frm.Liste);
    int code = 0;
    for (const QStringView classe : VueNumero(vue)->vocabulaire) {
        lignes.Add(store::CleDeListe(code), classe.toString(), vue + 1);
        ++code;
    }
}

/// Adds the rows of a table; gives the number of its records, those left out included.
qsizetype AjouterTable(Frmmain &frm, const Rubrique &rubrique, int vue) {
    List::Loading lignes(frm.Liste);
    auto base = store::OuvrirLivre();
    auto fiches = base.OpenRecordset(store::RequeteListe(rubrique.table, rubrique.champ));
    const qsizetype nombre = fiches.RecordCount();
    for (qsizetype lues = 1; lues <= nombre; ++lues, fiches.MoveNext()) {
        const auto titre = fiches.Fields(1);
        const QByteArrayView texte = titre.Utf8();
        // Ingredients that an import left with markup stay in the table but are not offered.
        const bool montrer = !titre.IsNull() && (vue != kVueIngredients || !texte.contains("</"));
        if (montrer) {
            lignes.AddDistinct(store::CleEcrite(fiches.Fields(0).Number()).Texte(), QUtf8StringView(texte),
                               vue + 1);
        }
        frm.Pb.SetFloodPercent(100.0 * static_cast<double>(lues) / static_cast<double>(nombre));
    }
    return nombre;
}

void SurlignerPremiere(Frmmain &frm) {
    if (frm.Liste.Count() == 0) {
        return;
    }
    frm.Liste.Select(1);
    frm.LTDroit.SetCaption(frm.Liste.Text(1));
    frm.Liste.Highlight(1, true);
    frm.LTDroit.SetTag(QString::number(1));
}

void DeplacerSurlignage(Frmmain &frm) {
    const int choisie = frm.Liste.SelectedIndex();
    frm.Liste.Highlight(choisie, true);
    const int ancienne = frm.LTDroit.Tag().toInt();
    if (ancienne >= 1 && ancienne <= frm.Liste.Count() && ancienne != choisie) {
        frm.Liste.Highlight(ancienne, false);
    }
    frm.LTDroit.SetTag(QString::number(choisie));
}

void MontrerOutilFiche(Frmmain &frm, bool visible) {
    frm.Outils(2).setVisible(visible);
    frm.LBtn(2).setVisible(visible);
}

void MontrerGroupe(Frmmain &frm, int vue) {
    ChargerRecettesVue(frm, vue);
    frm.LBGauche.SetCaption(QString::number(frm.LFilms.Count()) + QStringLiteral(" Recette(s) ..."));
    frm.MontrerTheme(vue);
    frm.Scroll(1).setToolTip(QStringLiteral("Une photo illustrant le thème"));
    MontrerOutilFiche(frm, false);
}

/// Shows a recipe that a row of a list names; which list, is noted in the toolbar.
void MontrerRecette(Frmmain &frm, qint64 numero, const QString &liste) {
    ChargerRecette(frm, numero);
    frm.Outils(2).SetTag(liste);
    MontrerOutilFiche(frm, true);
    ChargerLesListesCombo(frm);
    frm.Scroll(0).show();
}

void Renommer(const List &liste, int index, const QString &texte, const QString &table, const QString &cle) {
    if (texte != liste.Text(index)) {
        store::ModifierLibelle(table, store::NumeroDeCle(liste.Key(index)), texte, cle);
    }
}

} // namespace

int VueCourante() {
    return platform::settings::ToInteger(store::LireReglage(store::kTris));
}

void EnregistrerVue(int vue) {
    store::EnregistrerReglage(store::kTris, QString::number(vue));
}

void PresserBouton(Frmmain &frm, int vue) {
    const int courante = VueCourante();
    if (courante == vue) {
        return;
    }
    if (courante != kVueAucune) {
        frm.Bouton(courante).SetForeColor(Qt::white);
    }
    frm.CleCourante.clear();
    TrierListe(frm, vue);
    EnregistrerVue(vue);
    frm.Bouton(vue).SetForeColor(Qt::black);
}

void TrierListe(Frmmain &frm, int vue) {
    frm.LTCentre2.hide();
    frm.Scroll(0).hide();
    if (const Vue *choisie = VueNumero(vue)) {
        const QString table = choisie->table.toString();
        ChargerListe(frm,
                     {table, ChampTexte(vue, table), choisie->entete.toString(), choisie->suffixe.toString()},
                     vue);
        ListeHaute(frm);
        if (vue == 0) {
            frm.Scroll(0).setVisible(frm.Liste.Count() > 0);
        }
    }
    frm.Liste.raise();
    if (frm.Liste.Count() > 0) {
        frm.Liste.viewport()->setCursor(frm.CurseurMain());
        frm.LFilms.viewport()->setCursor(frm.CurseurMain());
    } else {
        frm.MontrerTheme(vue);
        frm.Liste.viewport()->unsetCursor();
    }
}

void ChargerListe(Frmmain &frm, const Rubrique &rubrique, int vue) {
    const WaitPointer sablier;
    frm.Liste.SetTag(QString::number(vue));
    PlacerListes(frm, vue);
    OuvrirPanneau(frm);
    frm.LTGauche.SetCaption(rubrique.entete);
    frm.LTGauche.SetTag(rubrique.entete);
    frm.LBGauche.SetCaption({});
    if (VueNumero(vue)->vocabulaire.empty()) {
        const qsizetype nombre = AjouterTable(frm, rubrique, vue);
        frm.LBGauche.SetCaption(QString::number(nombre) + rubrique.suffixe);
    } else {
        AjouterVocabulaire(frm, vue);
    }
    SurlignerPremiere(frm);
    frm.Chargement.hide();
}

void ListeHaute(Frmmain &frm) {
    if (frm.Liste.Count() == 0) {
        frm.LTDroit.SetCaption({});
    }
    const int choisie = frm.Liste.SelectedIndex();
    if (choisie == 0 || frm.CleCourante == frm.Liste.Key(choisie)) {
        return;
    }
    frm.Scroll(0).hide();
    frm.CleCourante = frm.Liste.Key(choisie);
    frm.LTDroit.SetCaption(frm.Liste.Text(choisie));
    frm.Icone_DEco.SetPicture(
        frm.Img().at(static_cast<std::size_t>(frm.Liste.SmallIcon(choisie) - 1)).toImage());
    DeplacerSurlignage(frm);
    frm.TitreCourant = frm.Liste.Text(choisie);
    frm.NumeroCourant = store::NumeroDeCle(frm.CleCourante);
    const int vue = frm.Liste.Tag().toInt();
    if (vue != 0) {
        MontrerGroupe(frm, vue);
        return;
    }
    frm.Scroll(1).setToolTip({});
    frm.Cadre(1).hide();
    MontrerRecette(frm, frm.NumeroCourant, kHaut);
}

void ClicListe(Frmmain &frm) {
    const Vue *vue = VueNumero(VueCourante());
    const bool modifiable = vue == nullptr || vue->vocabulaire.empty();
    frm.Liste.SetLabelEdit(modifiable ? List::LabelEditMode::Automatic : List::LabelEditMode::Manual);
    FlecheListe(frm);
}

void FlecheListe(Frmmain &frm) {
    CacherListeModif(frm);
    ListeHaute(frm);
}

void ClicFilms(Frmmain &frm) {
    CacherListeModif(frm);
    const int choisie = frm.LFilms.SelectedIndex();
    if (choisie == 0) {
        return;
    }
    frm.LTDroit.SetCaption(frm.LFilms.Text(choisie));
    MontrerRecette(frm, store::NumeroDeCle(frm.LFilms.Key(choisie)), kBas);
}

const List &ListeDeLaFiche(const Frmmain &frm) {
    return frm.Outils(2).Tag() == kBas ? frm.LFilms : frm.Liste;
}

void AllerAuVoisin(Frmmain &frm, int pas) {
    const bool bas = frm.Outils(2).Tag() == kBas;
    List &liste = bas ? frm.LFilms : frm.Liste;
    liste.Select(liste.SelectedIndex() + pas);
    if (bas) {
        ClicFilms(frm);
    } else {
        FlecheListe(frm);
    }
}

void RenommerListe(Frmmain &frm, int index, const QString &texte) {
    const Vue *vue = VueNumero(VueCourante());
    if (vue != nullptr && !vue->table.isEmpty()) {
        Renommer(frm.Liste, index, texte, vue->table.toString(), vue->cle.toString());
    }
}

void RenommerFilms(Frmmain &frm, int index, const QString &texte) {
    Renommer(frm.LFilms, index, texte, QStringLiteral("Cocktails"), QStringLiteral("Numero"));
}

} // namespace browser
