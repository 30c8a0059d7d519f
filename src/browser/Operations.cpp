#include "Operations.h"

#include "Fiche.h"
#include "Frmmain.h"
#include "TableDesVues.h"
#include "Valeurs.h"

#include "pictures/ChoisirImage.h"
#include "platform/dialogs/InputBox.h"
#include "platform/dialogs/MessageBox.h"
#include "store/AccesBase.h"
#include "store/Programme.h"
#include "store/Schema.h"
#include "store/Textes.h"

#include <algorithm>
#include <array>

namespace browser {

namespace {

using namespace platform::controls;
namespace dialogs = platform::dialogs;

/// What a view asks for when a value is added, and how the list is headed and counted then. The texts follow the names
/// of the tables, so those of Categorie and Verre speak of categories and glasses.
struct AjoutDeValeur {
    int vue = 0;
    QStringView invite, titre, suffixe, entete;
};

constexpr std::array kAjouts{
    AjoutDeValeur{1, u"Veuillez saisir une nouvelle catégorie", u"Création d'une nouvelle Catégorie",
                  u" Catégorie(s) ...", u" Liste des Catégories "},
    AjoutDeValeur{2, u"Veuillez saisir un nouveau type de verre ", u"Création d'un nouveau type de verre ",
                  u" Verre(s) ...", u" Liste des Verres"},
    AjoutDeValeur{6, u"Veuillez saisir un nouvel ingrédient", u"Création d'un nouvel ingrédient",
                  u" Ingredient(s) ...", u" Liste des Ingredients"},
};

/// Text after the count of each view when one of its rows has been deleted.
constexpr std::array<QStringView, kNombreDeVues> kSuffixes{
    u" Recette(s) ...", u" Catégorie(s) ...",  u" Verre(s) ...", u"", u"",
    u" Verre(s) ...",   u" Ingrédient(s) ...", u"  ..."};

/// True where "Ajouter" makes a recipe and not a value.
bool AjouteUneRecette(const Frmmain &frm) {
    return frm.Volet.EnBas() || VueCourante() == 0;
}

const AjoutDeValeur *AjoutDe(int vue) {
    const auto *trouvee = std::find_if(kAjouts.begin(), kAjouts.end(),
                                       [vue](const AjoutDeValeur &ajout) { return ajout.vue == vue; });
    return trouvee != kAjouts.end() ? trouvee : nullptr;
}

bool ConfirmerSuppression(Frmmain &frm, const QString &texte) {
    return dialogs::Ask(&frm, store::TitreProgramme.toString(),
                        QStringLiteral("Voulez-vous réellement supprimer ") + texte + QStringLiteral(" ?"));
}

/// Takes the selected row out of a list and selects the one that moves into its place, or else the last one. False
/// when no row is left.
bool RetirerRangee(List &liste) {
    const int place = liste.SelectedIndex();
    liste.Remove(place);
    if (liste.Count() == 0) {
        return false;
    }
    liste.Select(std::min(place, liste.Count()));
    return true;
}

qint64 NumeroChoisi(const List &liste) {
    return store::NumeroDeCle(liste.Key(liste.SelectedIndex()));
}

/// The lines of the recipe stay behind, without a recipe.
void SupprimerDuBas(Frmmain &frm) {
    List &liste = frm.LFilms;
    if (!ConfirmerSuppression(frm, liste.Text(liste.SelectedIndex()))) {
        return;
    }
    store::SupprimerFiches(store::kCocktails, NumeroChoisi(liste));
    if (RetirerRangee(liste)) {
        frm.Volet.MontrerRecette(kBas, NumeroChoisi(liste), liste.Text(liste.SelectedIndex()));
    }
}

/// Deletes what a row of Liste stands for. False when recipes still use it.
bool SupprimerDeLaVue(Frmmain &frm, int vue, qint64 numero) {
    const Vue *courante = VueNumero(vue);
    if (courante == nullptr || !courante->vocabulaire.empty()) {
        return true;
    }
    if (vue != 0 && frm.LFilms.Count() > 0) {
        return false;
    }
    store::SupprimerFiches(*courante->table, numero);
    if (vue == 0) {
        store::SupprimerFiches(store::kIngre, numero);
    }
    frm.LBGauche.SetCaption(QString::number(frm.Liste.Count()) +
                            kSuffixes.at(static_cast<std::size_t>(vue)).toString());
    return true;
}

void SupprimerDuHaut(Frmmain &frm) {
    List &liste = frm.Liste;
    if (!ConfirmerSuppression(frm, liste.Text(liste.SelectedIndex())) ||
        !SupprimerDeLaVue(frm, VueCourante(), NumeroChoisi(liste))) {
        return;
    }
    if (!RetirerRangee(liste)) {
        return;
    }
    ListeHaute(frm);
    if (VueCourante() != 0) {
        frm.Volet.MontrerSansOutil(NumeroChoisi(liste));
    }
}

pictures::CadreImage CadreDe(Frmmain &frm) {
    return {frm, {frm.CadrePhoto.Width(), frm.CadrePhoto.Height()}, frm.Photo};
}

/// Stores the path of the picture chosen last, which is this recipe's unless the choice was broken off.
void StockerPhoto(Frmmain &frm) {
    store::ModifierSiRenseigne(frm.Volet.Numero(), store::ChampRecette::Photo, frm.Photo.Tag());
}

/// Asks for a new value of a view and adds it, whether it is there already or not.
void AjouterValeur(Frmmain &frm, const AjoutDeValeur &ajout) {
    const auto texte = dialogs::InputBox(&frm, ajout.titre.toString(), ajout.invite.toString());
    if (!texte || store::SansBlancs(*texte).isEmpty()) {
        return;
    }
    const store::Table &table = *VueNumero(ajout.vue)->table;
    store::AjouterFiche(*texte, table);
    const QString avant = frm.Volet.CleCourante();
    ChargerListe(frm, {&table, ajout.entete, ajout.suffixe}, ajout.vue);
    const QString compte = frm.LBGauche.Caption();
    ListeHaute(frm);
    if (frm.Volet.CleCourante() == avant) {
        frm.LBGauche.SetCaption(compte); // of the values, where the group is still the same
    }
}

void MontrerChoix(Frmmain &frm) {
    frm.LecteurPhoto.Oublier();
    frm.ImageTemp.SetPicture(frm.Photo.Picture());
    frm.CadrePhoto.SetCaption({});
}

void ChoisirPhoto(Frmmain &frm) {
    const pictures::ChoixImage choix = pictures::ChoisirImage(CadreDe(frm), frm.DossierImages);
    if (choix != pictures::ChoixImage::Illisible) {
        StockerPhoto(frm);
    }
    if (choix == pictures::ChoixImage::Faite) {
        MontrerChoix(frm);
    }
}

} // namespace

bool RangeesModifiables() {
    const Vue *courante = VueNumero(VueCourante());
    return courante != nullptr && courante->vocabulaire.empty();
}

void ViserHaut(Frmmain &frm) {
    const int vue = VueCourante();
    frm.Volet.Designer(vue == 0 ? kHaut : QString());
    if (vue != 0) {
        // The row stands for a group from here on, no more for the recipe that may be shown beside it.
        frm.Volet.Quitter();
    }
}

void AgirSurRangee(Frmmain &frm, List &liste, void (*acte)(Frmmain &)) {
    if (liste.SelectedIndex() == 0 || (&liste == &frm.Liste && !RangeesModifiables())) {
        return;
    }
    // While an arrow is held down, what is shown is still of another row.
    if (&liste == &frm.LFilms) {
        ClicFilms(frm);
    } else {
        FlecheListe(frm);
        ViserHaut(frm);
    }
    acte(frm);
}

bool PeutAjouter(const Frmmain &frm) {
    return AjouteUneRecette(frm) || AjoutDe(VueCourante()) != nullptr;
}

void AjouterRangee(Frmmain &frm) {
    if (AjouteUneRecette(frm)) {
        Q_EMIT frm.CreationDemandee();
    } else if (const AjoutDeValeur *ajout = AjoutDe(VueCourante())) {
        AjouterValeur(frm, *ajout);
    }
}

void ModifierRangee(Frmmain &frm) {
    List &liste = frm.Volet.Liste();
    liste.SetLabelEdit(List::LabelEditMode::Automatic);
    liste.setFocus();
    liste.StartLabelEdit();
}

void SupprimerRangee(Frmmain &frm) {
    if (frm.Volet.EnBas()) {
        SupprimerDuBas(frm);
    } else {
        SupprimerDuHaut(frm);
    }
}

void ModifierPhoto(Frmmain &frm) {
    if (VueCourante() == 0) {
        ChoisirPhoto(frm);
    }
}

void SupprimerPhoto(Frmmain &frm) {
    if (!dialogs::Ask(&frm, store::TitreProgramme.toString(),
                      QStringLiteral("Etes-vous sûr de vouloir supprimer cette photo ?")) ||
        VueCourante() != 0) {
        return;
    }
    store::ModifierSiRenseigne(frm.Volet.Numero(), store::ChampRecette::Photo, QStringLiteral(" "));
    frm.LecteurPhoto.Oublier();
    frm.Photo.SetPicture({});
    frm.CadrePhoto.SetCaption(QStringLiteral("Pas de photo"));
}

void ClicCadrePhoto(Frmmain &frm) {
    CacherListeModif(frm);
    ChoisirPhoto(frm);
}

void DeposerPhoto(Frmmain &frm, const QString &fichier) {
    CacherListeModif(frm);
    if (pictures::PoserImage(CadreDe(frm), fichier) == pictures::ChoixImage::Faite) {
        StockerPhoto(frm);
        MontrerChoix(frm);
    }
}

} // namespace browser
