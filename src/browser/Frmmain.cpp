#include "Frmmain.h"

#include "Fiche.h"
#include "Lignes.h"
#include "Operations.h"
#include "TableDesOutils.h"
#include "TableDesTouches.h"
#include "TableDesValeurs.h"
#include "TableDesVues.h"
#include "Valeurs.h"
#include "Vues.h"

#include "platform/controls/FileDrop.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/ToolWindow.h"
#include "platform/controls/WhenPressed.h"
#include "platform/images/ResourcePicture.h"

#include <array>

namespace browser {

namespace {

using namespace platform::controls;
using platform::images::resourcePicture;

constexpr std::u16string_view kChangerImage = u"Cliquer ICI pour modifier l'image";

// Places in twips; those of the detail (from CadrePhoto on) are inside Scroll(0), and PlacerFiche stacks
// them.
constexpr std::array kControles{
    ControlRow{"Embleme", 150, 60, 480, 480, u"", u"", u"Emblème de Savorel"},
    ControlRow{"Enseigne", 6180, 15, 3000, 540, u"", u"", u"Enseigne"},
    ControlRow{"LPatch", 6180, 15, 3000, 540, u"", u"", u"Mode d'affichage"},
    ControlRow{"Btn_Min", 14190, 120, 360, 360, u"", u"Minimiser"},
    ControlRow{"Btn_Quit", 14760, 120, 360, 360, u"", u"Fermer"},

    ControlRow{"Bouton(0)", 150, 1770, 1800, 1065, u"Alphabétique"},
    ControlRow{"Bouton(1)", 150, 2898, 1800, 1065, u"Durée Cuisson"},
    ControlRow{"Bouton(2)", 150, 4026, 1800, 1065, u"Nbre Personnes"},
    ControlRow{"Bouton(3)", 150, 5154, 1800, 1065, u"Coût"},
    ControlRow{"Bouton(4)", 150, 6282, 1800, 1065, u"Difficultés"},
    ControlRow{"Bouton(5)", 150, 7410, 1800, 1065, u"Types de plats"},
    ControlRow{"Bouton(6)", 150, 8538, 1800, 1065, u"Ingrédients"},
    ControlRow{"Bouton(7)", 150, 9666, 1800, 1065, u"Durée de Réalisation"},

    ControlRow{"LTGauche", 2100, 1770, 4950, 335},
    ControlRow{"Liste", 2100, 2105, 4950, 8300, u"", u"", u"Liste"},
    ControlRow{"LTCentre2", 2100, 6025, 4950, 380, u"Recettes"},
    ControlRow{"LFilms", 2100, 6405, 4950, 4000, u"", u"", u"Recettes du groupe"},
    ControlRow{"LBGauche", 2160, 10435, 4890, 300},

    ControlRow{"Icone_DEco", 7230, 1755, 420, 420, u"", u"", u"Vue choisie"},
    ControlRow{"LTDroit", 7740, 1755, 7470, 420},
    ControlRow{"Scroll(0)", 7200, 2250, 8010, 8485, u"", u"", u"Recette"},
    ControlRow{"Scroll(1)", 7200, 2250, 8010, 8485, u"", u"", u"Thème"},
    ControlRow{"Cadre(1)", 105, 60, 7770, 8368, u"", u"", u"Illustration du thème"},

    ControlRow{"CadrePhoto", 150, 150, 7460, 4476, u"Pas de photo", u"", u"Photo de la recette"},
    ControlRow{"Photo", 200, 200, 6960, 4016, u"", kChangerImage},
    ControlRow{"ImageTemp", 0, 0, 15, 15},
    ControlRow{"Libelle(0)", 150, 0, 3600, 270, u"Ingrédients"},
    ControlRow{"Libelle(1)", 150, 0, 3505, 270, u"Nombre de Personnes"},
    ControlRow{"Libelle(2)", 3955, 0, 3655, 270, u"Type de Plat"},
    ControlRow{"Libelle(3)", 150, 0, 3600, 270, u"Préparation"},
    ControlRow{"Libelle(4)", 150, 0, 3600, 270, u"Compléments"},
    ControlRow{"Libelle(5)", 3955, 0, 3655, 270, u"Durée Réalisation"},
    ControlRow{"Libelle(7)", 150, 0, 3505, 270, u"Durée Cuisson"},
    ControlRow{"Libelle(8)", 150, 0, 1700, 270, u"Coût"},
    ControlRow{"Libelle(9)", 1955, 0, 1700, 270, u"Difficulté"},
    ControlRow{"Libelle(10)", 3955, 0, 3655, 270, u"Conseil Vin"},
    ControlRow{"Data(0)", 150, 0, 3505, 345, u"", u"", u"Nombre de Personnes"},
    ControlRow{"Data(1)", 3955, 0, 3655, 345, u"", u"", u"Type de Plat"},
    ControlRow{"Data(2)", 150, 0, 1700, 345, u"", u"", u"Coût"},
    ControlRow{"Data(3)", 1955, 0, 1700, 345, u"", u"", u"Difficulté"},
    ControlRow{"Data(4)", 3955, 0, 3655, 345, u"", u"", u"Conseil Vin"},
    ControlRow{"Data(5)", 3955, 0, 3655, 345, u"", u"", u"Durée Réalisation"},
    ControlRow{"Data(6)", 150, 0, 3505, 345, u"", u"", u"Durée Cuisson"},
    ControlRow{"Quantite(0)", 150, 0, 1200, 345, u"", u"", u"Quantité"},
    ControlRow{"Mesure(0)", 1545, 0, 2100, 345, u"", u"", u"Mesure"},
    ControlRow{"Ingre(0)", 3840, 0, 3770, 345, u"", u"", u"Ingrédient"},
    ControlRow{"Saisie(0)", 150, 0, 7460, 6000, u"", u"", u"Préparation"},
    ControlRow{"Saisie(1)", 150, 0, 7460, 3300, u"", u"", u"Compléments"},
    ControlRow{"LCategorie", 150, 0, 3505, 345, u"", u"", u"Durée Cuisson"},
    ControlRow{"LDureeReal", 3955, 0, 3655, 345, u"", u"", u"Durée Réalisation"},
    ControlRow{"LVerre", 150, 0, 3505, 345, u"", u"", u"Nombre de Personnes"},
    ControlRow{"LMateriel", 3955, 0, 3655, 345, u"", u"", u"Type de Plat"},
    ControlRow{"LCout", 150, 0, 1700, 345, u"", u"", u"Coût"},
    ControlRow{"LDiff", 1955, 0, 1700, 345, u"", u"", u"Difficulté"},
    ControlRow{"LTeneur", 3955, 0, 3655, 345, u"", u"", u"Conseil Vin"},
    ControlRow{"LQuantite", 150, 0, 1200, 345, u"", u"", u"Quantité"},
    ControlRow{"LMesure", 1545, 0, 2100, 345, u"", u"", u"Mesure"},
    ControlRow{"LIngre", 3840, 0, 3770, 345, u"", u"", u"Ingrédient"},

    ControlRow{"Chargement", 2700, 5400, 3750, 900},
    ControlRow{"Label1", 150, 120, 3450, 270, u"Chargement ..."},
    ControlRow{"Pb", 150, 450, 3450, 300},
};

constexpr Rectangle kBarreOutils{Twips(90), Twips(645), Twips(15180), Twips(1050)};

// The tools share the width of the window, in twips.
constexpr int kGaucheOutils = 150;
constexpr int kEntreOutils = 21;
constexpr int kPasOutils = (15060 + kEntreOutils) / static_cast<int>(kNombreOutils);

/// One element for each tool, side by side; textes adds to the row of each what it shows.
template <class Controle, class Textes>
Frmmain::Array<Controle> RangeeOutils(QWidget *fenetre, const char *nom, int haut, int hauteur,
                                      Textes textes) {
    Frmmain::Array<Controle> elements(fenetre, {}, nom);
    for (const AspectOutil &aspect : kAspects) {
        ControlRow rangee{nom, kGaucheOutils + elements.Count() * kPasOutils, haut, kPasOutils - kEntreOutils,
                          hauteur};
        textes(rangee, aspect);
        elements.Load(rangee);
    }
    return elements;
}

Frmmain::Array<Ribbon> BoutonsDesOutils(QWidget *fenetre) {
    return RangeeOutils<Ribbon>(
        fenetre, "Outils", 660, 570,
        [](ControlRow &rangee, const AspectOutil &aspect) { rangee.toolTip = aspect.bulle; });
}

Frmmain::Array<Panel> PanneauxDesOutils(QWidget *fenetre) {
    auto panneaux =
        RangeeOutils<Panel>(fenetre, "LBtn", 1230, 435, [](ControlRow &rangee, const AspectOutil &aspect) {
            rangee.caption = aspect.legende;
        });
    // The toolbar has a panel too many, which stands for no tool.
    panneaux
        .Load({.name = "LBtn",
               .left = kGaucheOutils + (panneaux.Count() - 1) * kPasOutils,
               .top = 1230,
               .width = kPasOutils - kEntreOutils,
               .height = 435,
               .caption = u"Restauration"})
        .hide();
    return panneaux;
}

QPixmap Icone(const QString &dessin) {
    return resourcePicture(QStringLiteral(":/icones/%1.argb").arg(dessin));
}

std::vector<QPixmap> ImagesDesVues() {
    std::vector<QPixmap> images;
    images.reserve(kNombreDeVues);
    for (int vue = 0; vue < kNombreDeVues; ++vue) {
        images.push_back(Icone(QStringLiteral("vue-%1").arg(vue)));
    }
    return images;
}

const QColor kCouleurPreparation(160, 250, 255);
constexpr QPoint kBoutDuDoigt(10, 4);

void PeindreValeur(Ribbon &bouton) {
    bouton.SetLook(Look::Value);
    bouton.setFont(interfaceFont(Face::Verdana, 8.25));
    bouton.SetForeColor(kInk);
}

// Black marks the button of the current view, and the pointer leaves it black.
void Survoler(Ribbon &bouton, const QColor &couleur) {
    if (bouton.ForeColor() != Qt::black) {
        bouton.SetForeColor(couleur);
    }
}

} // namespace

Frmmain::Frmmain()
    : SkinnedWindow(QStringLiteral("Frmmain"), kWindowSize),
      m_img(ImagesDesVues()),
      m_main(resourcePicture(QStringLiteral(":/curseurs/main.argb")), kBoutDuDoigt.x(), kBoutDuDoigt.y()),
      Embleme(this, rowNamed(kControles, "Embleme")),
      Enseigne(this, rowNamed(kControles, "Enseigne")),
      LPatch(this, rowNamed(kControles, "LPatch")),
      Btn_Min(this, rowNamed(kControles, "Btn_Min")),
      Btn_Quit(this, rowNamed(kControles, "Btn_Quit")),
      Outils(BoutonsDesOutils(this)),
      LBtn(PanneauxDesOutils(this)),
      Bouton(this, kControles, "Bouton"),
      LTGauche(this, rowNamed(kControles, "LTGauche")),
      Liste(this, rowNamed(kControles, "Liste")),
      LTCentre2(this, rowNamed(kControles, "LTCentre2")),
      LFilms(this, rowNamed(kControles, "LFilms")),
      LBGauche(this, rowNamed(kControles, "LBGauche")),
      Icone_DEco(this, rowNamed(kControles, "Icone_DEco")),
      LTDroit(this, rowNamed(kControles, "LTDroit")),
      Scroll(this, kControles, "Scroll"),
      Cadre(Scroll(1).Content(), kControles, "Cadre"),
      CadrePhoto(Scroll(0).Content(), rowNamed(kControles, "CadrePhoto")),
      Photo(&CadrePhoto, rowNamed(kControles, "Photo")),
      ImageTemp(this, rowNamed(kControles, "ImageTemp")),
      Libelle(Scroll(0).Content(), kControles, "Libelle"),
      Data(Scroll(0).Content(), kControles, "Data"),
      Quantite(Scroll(0).Content(), kControles, "Quantite"),
      Mesure(Scroll(0).Content(), kControles, "Mesure"),
      Ingre(Scroll(0).Content(), kControles, "Ingre"),
      Saisie(Scroll(0).Content(), kControles, "Saisie"),
      LCategorie(Scroll(0).Content(), rowNamed(kControles, "LCategorie")),
      LDureeReal(Scroll(0).Content(), rowNamed(kControles, "LDureeReal")),
      LVerre(Scroll(0).Content(), rowNamed(kControles, "LVerre")),
      LMateriel(Scroll(0).Content(), rowNamed(kControles, "LMateriel")),
      LCout(Scroll(0).Content(), rowNamed(kControles, "LCout")),
      LDiff(Scroll(0).Content(), rowNamed(kControles, "LDiff")),
      LTeneur(Scroll(0).Content(), rowNamed(kControles, "LTeneur")),
      LQuantite(Scroll(0).Content(), rowNamed(kControles, "LQuantite")),
      LMesure(Scroll(0).Content(), rowNamed(kControles, "LMesure")),
      LIngre(Scroll(0).Content(), rowNamed(kControles, "LIngre")),
      Chargement(this, rowNamed(kControles, "Chargement")),
      Label1(&Chargement, rowNamed(kControles, "Label1")),
      Pb(&Chargement, rowNamed(kControles, "Pb")) {
    Peindre();
    PeindreOutils();
    PeindreFiche();
    BrancherBoutons();
    BrancherListes();
    BrancherFiche();
}

void Frmmain::Peindre() {
    SetStrips({kBarreOutils});
    Embleme.SetPicture(platform::images::programIcon().toImage());
    Enseigne.SetPicture(resourcePicture(QStringLiteral(":/themes/enseigne.argb")).toImage());

    const QFont titre = interfaceFont(Face::Verdana, 8.25, true);
    for (Label *label : {&LTGauche, &LTCentre2, &LBGauche}) {
        label->setFont(titre);
        label->SetForeColor(Qt::white);
    }
    LBGauche.setFont(interfaceFont(Face::Verdana, 8.25));
    LTDroit.setFont(interfaceFont(Face::Verdana, 13, true));
    LTDroit.SetForeColor(Qt::white);
    LTCentre2.hide();
    Scroll(1).SetBackColor(kListGround);
    // A recipe covers the theme of its group. Nothing is shown before a view is loaded.
    Scroll(0).raise();
    Scroll(0).hide();
    LFilms.hide();
    Outils(2).hide();
    LBtn(2).hide();

    Chargement.SetBackColor(skin().strip);
    Pb.SetBackColor(Qt::white);
    // Beneath them lies a list that is being filled and must not be painted.
    Chargement.SetSquare();
    Pb.SetSquare();
    Label1.setFont(titre);
    Label1.SetForeColor(kInk);
    Label1.setAlignment(Qt::AlignCenter);
    Chargement.hide();
}

void Frmmain::PeindreOutils() {
    for (int index = 0; index < Outils.Count(); ++index) {
        Ribbon &outil = Outils(index);
        outil.SetLook(Look::Tool);
        const AspectOutil &aspect = kAspects[static_cast<std::size_t>(index)];
        outil.setStatusTip(QStringView(aspect.phrase).toString());
        outil.SetPicture(Icone(QLatin1String(aspect.dessin)));
    }
    LBtn.ForEach([](Panel &panneau) {
        panneau.setFont(interfaceFont(Face::SansSerif, 8.25));
        panneau.SetForeColor(Qt::blue);
    });

    for (int vue = 0; vue < Bouton.Count(); ++vue) {
        Ribbon &bouton = Bouton(vue);
        bouton.SetLook(Look::Sort);
        bouton.setStatusTip(VueNumero(vue)->phrase.toString());
        bouton.setFont(interfaceFont(Face::Comic, 9, true));
        bouton.SetForeColor(Qt::white);
        bouton.SetPicture(m_img[static_cast<std::size_t>(vue)]);
    }
    setBandPictures(Btn_Min, QStringLiteral("reduire"));
    setBandPictures(Btn_Quit, QStringLiteral("fermer"));
}

void Frmmain::PeindreFiche() {
    const QFont titre = interfaceFont(Face::Verdana, 8.25, true);
    Libelle.ForEach([&titre](Label &libelle) {
        libelle.setFont(titre);
        libelle.SetForeColor(kInk);
    });
    Data.ForEach(PeindreValeur);
    for (Array<Ribbon> *colonne : {&Quantite, &Mesure, &Ingre}) {
        PeindreValeur((*colonne)(0));
    }
    CadrePhoto.setFont(titre);
    CadrePhoto.SetForeColor(kInk);
    CadrePhoto.SetBackColor(kLightGround);
    Photo.hide();
    ImageTemp.hide();
    Saisie(0).SetDefaultColor(kCouleurPreparation);
    Saisie(1).SetDefaultColor(Qt::white);
    CadrePhoto.SetReachable();
    for (DropList *liste : ListesModif()) {
        liste->hide();
    }
}

void Frmmain::RevenirALaListe() {
    (Volet.EnBas() && LFilms.SelectedIndex() != 0 ? LFilms : Liste).setFocus();
}

std::vector<Frmmain::DropList *> Frmmain::ListesModif() {
    std::vector<DropList *> listes{&LQuantite, &LMesure, &LIngre};
    for (const Valeur &valeur : kValeurs) {
        listes.push_back(&valeur.Liste(*this));
    }
    return listes;
}

void Frmmain::PreparerListes() {
    for (List *liste : {&Liste, &LFilms}) {
        liste->SetColumn(QStringLiteral("Titre"), liste->Width() - Twips(300));
        liste->SetImageList(m_img);
    }
    Liste.SetEmptyText(
        QStringLiteral("Cette liste est vide.\n« Création manuelle » et « Création facile », en haut, "
                       "ajoutent une recette au livre."));
    LFilms.SetEmptyText(
        QStringLiteral("Aucune recette dans ce groupe.\nUn clic sur un autre groupe montre les siennes."));
}

void Frmmain::RemplirVocabulaires() {
    for (const Valeur &valeur : kValeurs) {
        for (const QStringView classe : valeur.vocabulaire) {
            if (!classe.isEmpty()) {
                valeur.Liste(*this).AddItems({classe.toString()});
            }
        }
        if (valeur.forme == Forme::Code) {
            valeur.Liste(*this).SetListIndex(0);
        }
    }
}

void Frmmain::SetCouleurSelection(const QColor &couleur) {
    CouleurSelection = couleur;
    Liste.SetSelectionColour(couleur);
}

void Frmmain::ChargerLigne() {
    PeindreValeur(Quantite.Load(rowNamed(kControles, "Quantite(0)")));
    PeindreValeur(Mesure.Load(rowNamed(kControles, "Mesure(0)")));
    PeindreValeur(Ingre.Load(rowNamed(kControles, "Ingre(0)")));
    BrancherLigne(*this, Ingre.Count() - 1);
}

void Frmmain::BrancherBoutons() {
    for (int vue = 0; vue < Bouton.Count(); ++vue) {
        Ribbon &bouton = Bouton(vue);
        whenPressed(bouton, [this, vue] {
            PresserBouton(*this, vue);
            Liste.setFocus();
        });
        connect(&bouton, &Ribbon::Entered, this, [&bouton] { Survoler(bouton, Qt::yellow); });
        connect(&bouton, &Ribbon::Exited, this, [&bouton] { Survoler(bouton, Qt::white); });
    }
    for (int index = 0; index < Outils.Count(); ++index) {
        whenPressed(Outils(index), [this, index] { Q_EMIT OutilPresse(index); });
    }
    whenPressed(Btn_Quit, [this] { Q_EMIT FermetureDemandee(); });
    whenPressed(Btn_Min, [this] { Q_EMIT ReductionDemandee(); });
    pressByKeys(*this, kTouches);
}

void Frmmain::BrancherListes() {
    connect(&Liste, &List::ItemClicked, this, [this] { ClicListe(*this); });
    connect(&Liste, &List::ArrowReleased, this, [this] { FlecheListe(*this); });
    connect(&Liste, &List::AfterLabelEdit, this,
            [this](int index, const QString &texte) { RenommerListe(*this, index, texte); });
    connect(&LFilms, &List::ItemClicked, this, [this] { ClicFilms(*this); });
    connect(&LFilms, &List::ArrowReleased, this, [this] { ClicFilms(*this); });
    connect(&LFilms, &List::AfterLabelEdit, this,
            [this](int index, const QString &texte) { RenommerFilms(*this, index, texte); });
    for (List *liste : {&Liste, &LFilms}) {
        connect(liste, &List::Focused, this, [liste] { liste->SetLabelEdit(List::LabelEditMode::Manual); });
        onKey(
            *liste, Qt::Key_F2, [this, liste] { AgirSurRangee(*this, *liste, ModifierRangee); },
            Qt::WidgetShortcut);
        onKey(
            *liste, Qt::Key_Delete, [this, liste] { AgirSurRangee(*this, *liste, SupprimerRangee); },
            Qt::WidgetShortcut);
    }
}

void Frmmain::BrancherFiche() {
    BrancherValeurs(*this);
    BrancherLigne(*this, 0);
    BrancherListesDeLigne(*this);
    for (DropList *liste : ListesModif()) {
        connect(liste, &DropList::LostFocus, liste, &QWidget::hide);
    }
    for (ScrollPanel *panneau : {&Scroll(0), &Scroll(1)}) {
        connect(panneau, &ScrollPanel::Clicked, this, [this] { CacherListeModif(*this); });
    }
    connect(&CadrePhoto, &Panel::Clicked, this, [this] { ClicCadrePhoto(*this); });
    auto *depot = new FileDrop(*Scroll(0).Content());
    connect(
        depot, &FileDrop::Dropped, this, [this](const QString &fichier) { DeposerPhoto(*this, fichier); },
        Qt::QueuedConnection);
}

} // namespace browser
