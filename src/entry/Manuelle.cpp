#include "Manuelle.h"

#include "ChampsDeCreation.h"
#include "CreerRecette.h"
#include "Listes.h"

#include "browser/Frmmain.h"
#include "browser/Vues.h"
#include "platform/controls/FileDrop.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/WhenPressed.h"

#include <QSignalBlocker>
#include <algorithm>
#include <array>

namespace entry {

namespace {

using namespace platform::controls;

// Places in twips; those from Libelle to LIngre are inside Scroll.
constexpr std::array kControles{
    ControlRow{"Scroll", 150, 750, 15060, 9300},
    ControlRow{"Libelle(0)", 240, 120, 7140, 255, u"Recette *"},
    ControlRow{"TitreRecette", 240, 375, 7140, 375, u"", u"", u"Recette"},
    ControlRow{"Libelle(1)", 240, 870, 3450, 255, u"Coût"},
    ControlRow{"Liste(0)", 240, 1125, 3450, 375, u"", u"", u"Coût"},
    ControlRow{"Libelle(2)", 3930, 870, 3450, 255, u"Difficulté"},
    ControlRow{"Liste(1)", 3930, 1125, 3450, 375, u"", u"", u"Difficulté"},
    ControlRow{"Libelle(3)", 240, 1620, 7140, 255, u"Conseil Vin"},
    ControlRow{"Liste(2)", 240, 1875, 7140, 375, u"", u"", u"Conseil Vin"},
    ControlRow{"Libelle(4)", 240, 2370, 3450, 255, u"Durée Cuisson *"},
    ControlRow{"Liste(3)", 240, 2625, 3450, 375, u"", u"", u"Durée Cuisson"},
    ControlRow{"Libelle(5)", 3930, 2370, 3450, 255, u"Nombre de Personnes"},
    ControlRow{"Liste(4)", 3930, 2625, 3450, 375, u"", u"", u"Nombre de Personnes"},
    ControlRow{"Libelle(6)", 240, 3120, 3450, 255, u"Type de Plat"},
    ControlRow{"Liste(5)", 240, 3375, 3450, 375, u"", u"", u"Type de Plat"},
    ControlRow{"Libelle(7)", 3930, 3120, 3450, 255, u"Durée Réalisation"},
    ControlRow{"DReal", 3930, 3375, 3450, 375, u"", u"", u"Durée Réalisation"},

    ControlRow{"Libelle(8)", 240, 3960, 1350, 255, u"Quantité"},
    ControlRow{"Libelle(9)", 1650, 3960, 1950, 255, u"Mesure"},
    ControlRow{"Libelle(10)", 3660, 3960, 3720, 255, u"Ingrédient"},
    ControlRow{"Qte(0)", 240, 4215, 1350, 375, u"", u"", u"Quantité"},
    ControlRow{"Qte2(0)", 1650, 4215, 1950, 375, u"", u"", u"Mesure"},
    ControlRow{"Ingre(0)", 3660, 4215, 3720, 375, u"", u"", u"Ingrédient"},

    ControlRow{"Libelle(11)", 7680, 120, 7140, 255, u"Photo"},
    ControlRow{"CadrePhoto", 7680, 375, 7140, 3375, u"", u"Cliquer ICI pour modifier l'image"},
    ControlRow{"Photo", 200, 200, 6740, 2975, u"", u"Cliquer ICI pour modifier l'image"},
    ControlRow{"Libelle(12)", 7680, 3960, 7140, 255, u"Préparation"},
    ControlRow{"Saisie(0)", 7680, 4215, 7140, 2715, u"", u"", u"Préparation"},
    ControlRow{"Libelle(13)", 7680, 7050, 7140, 255, u"Compléments"},
    ControlRow{"Saisie(1)", 7680, 7305, 7140, 1785, u"", u"", u"Compléments"},

    ControlRow{"LCout", 240, 1125, 3450, 375, u"", u"", u"Coût"},
    ControlRow{"LDiff", 3930, 1125, 3450, 375, u"", u"", u"Difficulté"},
    ControlRow{"LVin", 240, 1875, 7140, 375, u"", u"", u"Conseil Vin"},
    ControlRow{"LDureeCuisson", 240, 2625, 3450, 375, u"", u"", u"Durée Cuisson"},
    ControlRow{"LPers", 3930, 2625, 3450, 375, u"", u"", u"Nombre de Personnes"},
    ControlRow{"LPlat", 240, 3375, 3450, 375, u"", u"", u"Type de Plat"},
    ControlRow{"LDureeReal", 3930, 3375, 3450, 375, u"", u"", u"Durée Réalisation"},
    ControlRow{"LQte", 240, 4215, 1350, 375, u"", u"", u"Quantité"},
    ControlRow{"LQte2", 1650, 4215, 1950, 375, u"", u"", u"Mesure"},
    ControlRow{"LIngre", 3660, 4215, 3720, 375, u"", u"", u"Ingrédient"},

    ControlRow{"Rappel", 390, 10350, 9000, 300, u"* à remplir avant de créer la recette"},
    ControlRow{"Creer", 11970, 10230, 3000, 540, u"Créer la recette"},
};

constexpr int kLignes = 11;
constexpr int kPas = 450; // twips from one ingredient line to the next: the last one ends where the texts end

const std::array kCouleursSaisie{QColor(0, 255, 255), QColor(255, 255, 255)};

/// The row of the first ingredient line, moved down to another line.
ControlRow LigneDe(const ControlRow &premiere, int index) {
    ControlRow ligne = premiere;
    ligne.top += index * kPas;
    return ligne;
}

} // namespace

Manuelle::Manuelle(browser::Frmmain &frm)
    : ToolWindow(QStringLiteral("Manuelle"), kWindowSize),
      Principale(frm),
      Scroll(this, rowNamed(kControles, "Scroll")),
      Libelle(Scroll.Content(), kControles, "Libelle"),
      TitreRecette(Scroll.Content(), rowNamed(kControles, "TitreRecette")),
      Liste(Scroll.Content(), kControles, "Liste"),
      DReal(Scroll.Content(), rowNamed(kControles, "DReal")),
      Qte(Scroll.Content(), kControles, "Qte"),
      Qte2(Scroll.Content(), kControles, "Qte2"),
      Ingre(Scroll.Content(), kControles, "Ingre"),
      Saisie(Scroll.Content(), kControles, "Saisie"),
      CadrePhoto(Scroll.Content(), rowNamed(kControles, "CadrePhoto")),
      Photo(&CadrePhoto, rowNamed(kControles, "Photo")),
      LCout(Scroll.Content(), rowNamed(kControles, "LCout")),
      LDiff(Scroll.Content(), rowNamed(kControles, "LDiff")),
      LVin(Scroll.Content(), rowNamed(kControles, "LVin")),
      LDureeCuisson(Scroll.Content(), rowNamed(kControles, "LDureeCuisson")),
      LPers(Scroll.Content(), rowNamed(kControles, "LPers")),
      LPlat(Scroll.Content(), rowNamed(kControles, "LPlat")),
      LDureeReal(Scroll.Content(), rowNamed(kControles, "LDureeReal")),
      LQte(Scroll.Content(), rowNamed(kControles, "LQte")),
      LQte2(Scroll.Content(), rowNamed(kControles, "LQte2")),
      LIngre(Scroll.Content(), rowNamed(kControles, "LIngre")),
      Rappel(this, rowNamed(kControles, "Rappel")),
      Creer(this, rowNamed(kControles, "Creer")) {
    SetHeading(QStringLiteral("Création manuelle"));
    ChargerLignes();
    Peindre();
    ChargerLesListesCombo(*this);
    ChargerListesDesLignes(*this);
    ViderSaisies();
    Brancher();
    NoterDepart();
    TitreRecette.setFocus();
}

void Manuelle::ChargerLignes() {
    for (int index = 1; index < kLignes; ++index) {
        Qte.Load(LigneDe(rowNamed(kControles, "Qte(0)"), index));
        Qte2.Load(LigneDe(rowNamed(kControles, "Qte2(0)"), index));
        Ingre.Load(LigneDe(rowNamed(kControles, "Ingre(0)"), index));
    }
    for (Array<TextBox> *colonne : {&Qte, &Qte2, &Ingre}) {
        for (int index = 0; index < kLignes; ++index) {
            TextBox &champ = (*colonne)(index);
            champ.setAccessibleName(
                QStringLiteral("%1, ligne %2").arg(champ.accessibleName()).arg(index + 1));
        }
    }
}

void Manuelle::Peindre() {
    const QFont titre = interfaceFont(Face::Verdana, 8.25, true);
    Scroll.SetBackColor(kListGround);
    Libelle.ForEach([&titre](Label &libelle) {
        libelle.setFont(titre);
        libelle.SetForeColor(kInk);
    });
    Rappel.setFont(interfaceFont(Face::Verdana, 8.25));
    Rappel.SetForeColor(Qt::white);
    CadrePhoto.setFont(titre);
    CadrePhoto.SetForeColor(kInk);
    CadrePhoto.SetBackColor(kLightGround);
    CadrePhoto.SetReachable();
    Photo.setCursor(Principale.CurseurMain());
    Photo.hide();
    LegenderPhoto();
    Liste.ForEach([this](TextBox &champ) { champ.setCursor(Principale.CurseurMain()); });
    for (std::size_t index = 0; index < kCouleursSaisie.size(); ++index) {
        Saisie(static_cast<int>(index)).SetDefaultColor(kCouleursSaisie[index]);
    }
    for (DropList *liste : Listes()) {
        liste->hide();
    }
    Creer.SetLook(Look::Command);
    Creer.setFont(interfaceFont(Face::Verdana, 10, true));
    NameQuit(QStringLiteral("Revenir au menu principal"));
}

std::vector<Manuelle::DropList *> Manuelle::Listes() {
    return {&LDureeReal, &LQte2, &LQte, &LIngre, &LDureeCuisson, &LPers, &LPlat, &LCout, &LDiff, &LVin};
}

void Manuelle::ViderSaisies() {
    for (std::size_t index = 0; index < kCouleursSaisie.size(); ++index) {
        RichTextBox &saisie = Saisie(static_cast<int>(index));
        saisie.SetTextRTF({});
        const QSignalBlocker sansAnnulation(&saisie);
        saisie.selectAll();
        saisie.SetSelColor(kCouleursSaisie[index]);
    }
}

void Manuelle::LegenderPhoto() {
    CadrePhoto.SetCaption(Photo.Picture().isNull() ? QStringLiteral("Choisir une image ...") : QString());
}

void Manuelle::Brancher() {
    BrancherListes(*this);
    connect(&Scroll, &ScrollPanel::Clicked, this, [this] { CacherListes(*this); });
    connect(&Photo, &Image::Pressed, this, [this] { CacherListesDesLignes(*this); });
    connect(&CadrePhoto, &Panel::Clicked, this, &Manuelle::ChoisirPhoto);
    const auto *depot = new FileDrop(*Scroll.Content());
    connect(depot, &FileDrop::Dropped, this, &Manuelle::DeposerPhoto, Qt::QueuedConnection);
    whenPressed(Creer, [this] { PresserCreer(*this); });
    connect(this, &SkinnedWindow::CloseRequested, this, &Manuelle::Quitter);
}

pictures::CadreImage Manuelle::CadreDeLaPhoto() {
    return {*this, {CadrePhoto.Width(), CadrePhoto.Height()}, Photo};
}

void Manuelle::ChoisirPhoto() {
    Poser(pictures::ChoisirImage(CadreDeLaPhoto(), Principale.DossierImages));
}

void Manuelle::DeposerPhoto(const QString &fichier) {
    Poser(pictures::PoserImage(CadreDeLaPhoto(), fichier));
}

void Manuelle::Poser(pictures::ChoixImage choix) {
    if (choix == pictures::ChoixImage::Faite) {
        Principale.ImageTemp.SetPicture(Photo.Picture());
    }
    LegenderPhoto();
}

void Manuelle::NoterDepart() {
    m_depart = LireChamps(*this);
}

bool Manuelle::MayEscape() {
    const bool intacte = Photo.Picture().isNull() && LireChamps(*this) == m_depart;
    return intacte || ConfirmerAbandon(*this);
}

void Manuelle::Quitter() {
    if (creationFaite) {
        browser::TrierListe(Principale, browser::VueCourante());
    }
    Unload();
}

/// The controls in the order in which the keyboard goes through them.
std::vector<QWidget *> Manuelle::Ordre() {
    std::vector<QWidget *> ordre{&TitreRecette};
    Liste.ForEach([&ordre](TextBox &champ) { ordre.push_back(&champ); });
    ordre.push_back(&DReal);
    for (int index = 0; index < Qte.Count(); ++index) {
        ordre.insert(ordre.end(), {&Qte(index), &Qte2(index), &Ingre(index)});
    }
    ordre.insert(ordre.end(), {&Saisie(0), &Saisie(1), &CadrePhoto, &Creer, &Mini, &Quit});
    return ordre;
}

/// A drop list stands for the field that it lies over.
bool Manuelle::focusNextPrevChild(bool next) {
    const std::vector<QWidget *> ordre = Ordre();
    const auto nombre = static_cast<std::ptrdiff_t>(ordre.size());
    const auto actuel = std::find(ordre.begin(), ordre.end(), ChampAuClavier(*this));
    std::ptrdiff_t place = next ? 0 : nombre - 1;
    if (actuel != ordre.end()) {
        place = (actuel - ordre.begin() + (next ? 1 : nombre - 1)) % nombre;
    }
    ordre[static_cast<std::size_t>(place)]->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

} // namespace entry
