#include "Recherche.h"

#include "FrmFind.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/controls/WaitPointer.h"
#include "store/AccesBase.h"

#include <QLocale>

#include <array>

namespace search {

namespace {

using namespace platform::controls;

/// What an option searches: a table, and the view of the main window that shows its rows.
struct Cible {
    QStringView table;
    int vue = 0;
};

constexpr std::array kCibles{
    Cible{u"Cocktails", 0},  Cible{u"Categorie", 1}, Cible{u"Verre", 2},
    Cible{u"Ingredient", 6}, Cible{u"DureeReal", 7},
};

/// The columns of Cocktails that Chk restricts.
constexpr std::array<QStringView, 2> kRestrictions{u"Cout", u"Difficulte"};

// A view's rows have the same picture everywhere.
constexpr int IconeDeVue(int vue) {
    return vue + 1;
}

constexpr int VueDIcone(int icone) {
    return icone - 1;
}

QString RequeteRecettes(const FrmFind &fenetre) {
    // Always true, so that each restriction can begin with "and".
    QString requete = u"Select * From " + fenetre.TableRecherche + u" where Numero > 0 ";
    for (int index = 0; index < fenetre.Chk.Count(); ++index) {
        if (fenetre.Chk(index).Value()) {
            const int code = fenetre.LChk(index).SelectedIndex() - 1;
            requete +=
                u" and " + kRestrictions.at(static_cast<std::size_t>(index)) + u" = " + QString::number(code);
        }
    }
    return requete + u"   order by Numero desc";
}

QString Requete(const FrmFind &fenetre) {
    const QString &table = fenetre.TableRecherche;
    // In every lookup table the text column has the name of the table.
    return table == kCibles.front().table ? RequeteRecettes(fenetre)
                                          : u"Select * From " + table + u" order by " + table + u" asc";
}

void AnnoncerNombre(FrmFind &fenetre) {
    const int nombre = fenetre.Liste.Count();
    const QString chiffre = nombre == 0 ? QStringLiteral("Aucun") : QLocale(QLocale::French).toString(nombre);
    fenetre.LNombre.SetCaption(chiffre + (nombre > 1 ? u" résultats" : u" résultat"));
    fenetre.LSuite.SetCaption(nombre == 0 ? QString()
                                          : QStringLiteral("Double-clic ou Entrée : montrer dans le livre"));
}

/// Loads a view and marks its button as the current one.
void ChangerDeVue(browser::Frmmain &frm, int ancienne, int vue) {
    // A group and a recipe may have the same key: the first row of the view must count as another one.
    frm.CleCourante.clear();
    browser::TrierListe(frm, vue);
    if (ancienne != browser::kVueAucune) {
        frm.Bouton(ancienne).SetForeColor(Qt::white);
    }
    frm.Bouton(vue).SetForeColor(Qt::black);
}

} // namespace

void ChoisirTable(FrmFind &fenetre, int index) {
    const Cible &cible = kCibles.at(static_cast<std::size_t>(index));
    const bool recettes = index == 0;
    fenetre.Chk.ForEach([recettes](CheckBox &restriction) { restriction.setEnabled(recettes); });
    fenetre.LChk.ForEach([recettes](List &liste) { liste.setEnabled(recettes); });
    fenetre.TableRecherche = cible.table.toString();
    fenetre.IconeRecherche = IconeDeVue(cible.vue);
}

void Rechercher(FrmFind &fenetre) {
    const WaitPointer sablier;
    List::Loading lignes(fenetre.Liste);
    for (const store::Resultat &trouve :
         store::LireResultats(Requete(fenetre), fenetre.Choix(0).Value(), fenetre.Saisie.Text())) {
        lignes.AddDistinct(trouve.cle, trouve.texte, fenetre.IconeRecherche); // keys of a table are distinct
    }
    AnnoncerNombre(fenetre);
}

void MontrerResultat(FrmFind &fenetre, browser::Frmmain &frm) {
    const int courante = browser::VueCourante();
    const int choisie = fenetre.Liste.SelectedIndex();
    // Not the table chosen now: that may have changed since the search, and then other rows have these keys.
    const int vue = VueDIcone(fenetre.Liste.SmallIcon(choisie));
    if (vue != courante) {
        ChangerDeVue(frm, courante, vue);
    }
    frm.Liste.Select(frm.Liste.IndexOfKey(fenetre.Liste.Key(choisie)));
    browser::ListeHaute(frm);
    browser::EnregistrerVue(vue);
    fenetre.LSuite.SetCaption(QStringLiteral("Montré dans le livre : ") + fenetre.Liste.Text(choisie));
}

} // namespace search
