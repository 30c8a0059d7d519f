#include "FicheAlbum.h"

#include "Caracteres.h"
#include "Impression.h"

#include "browser/Frmmain.h"
#include "browser/TableDesValeurs.h"
#include "browser/Vues.h"
#include "pictures/AjusterPhoto.h"
#include "platform/controls/Fonts.h"
#include "platform/controls/Keys.h"
#include "platform/controls/WaitPointer.h"
#include "platform/controls/WhenPressed.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/images/ResourcePicture.h"
#include "store/Programme.h"

#include <QFontMetrics>
#include <array>
#include <functional>

namespace sheets {

namespace {

using namespace platform::controls;
using browser::ValeurDe;
using store::ChampRecette;

constexpr Extent kTaille{FicheAlbum::kLargeurInterieure + Twips(60), Twips(9360)};

// Places in twips; those of the page (from Recette on) are inside Scroll(0). The top of a row of Qte, Mesure and Ingre
// and of all below it follows the number of rows.
constexpr std::array kControles{
    ControlRow{"CadreBouton", 200, 630, 14960, 1050},
    ControlRow{"Navi(0)", 30, 150, 1660, 705, u"Précédent  "},
    ControlRow{"Navi(1)", 1720, 150, 1575, 705, u"   Suivant"},
    ControlRow{"Navi(3)", 3360, 150, 1815, 705, u"  Imprimer  ", u"Imprimer la recette"},
    ControlRow{"Navi(2)", 13080, 120, 1815, 705, u" Configurer  ", u"Configurer l'imprimante"},
    ControlRow{"Avis", 5400, 330, 7500, 345},
    ControlRow{"Scroll(0)", 230, 1680, 14900, 7430, u"", u"", u"Fiche"},

    ControlRow{"Recette", 240, 165, 14175, 435},
    ControlRow{"CadrePhoto", 240, 840, 4695, 3975, u"Pas de photo", u"", u"Photo de la recette"},
    ControlRow{"Photo", 120, 120, 4455, 3735},
    ControlRow{"Libelle(0)", 240, 5040, 3600, 240, u"Ingrédients"},
    ControlRow{"Libelle(1)", 5280, 3000, 3495, 240, u"Nombre de Personnes"},
    ControlRow{"Libelle(2)", 9120, 3000, 5175, 240, u"Type de Plat"},
    ControlRow{"Libelle(3)", 240, 5595, 3600, 240, u"Préparation"},
    ControlRow{"Libelle(4)", 5280, 4080, 9015, 240, u"Durée de Réalisation"},
    ControlRow{"Libelle(5)", 240, 10605, 3600, 240, u"Compléments"},
    ControlRow{"Libelle(7)", 5280, 1920, 9015, 240, u"Durée de Cuisson"},
    ControlRow{"Libelle(8)", 5280, 840, 1935, 240, u"Coût"},
    ControlRow{"Libelle(9)", 8040, 840, 1935, 240, u"Difficulté"},
    ControlRow{"Libelle(10)", 10680, 840, 3615, 240, u"Conseil en Vin"},
    ControlRow{"Cout", 5280, 1080, 1935, 375, u"", u"", u"Coût"},
    ControlRow{"Diff", 8040, 1080, 1935, 375, u"", u"", u"Difficulté"},
    ControlRow{"Teneur", 10680, 1080, 3615, 375, u"", u"", u"Conseil en Vin"},
    ControlRow{"Data(0)", 5280, 4320, 9015, 375, u"", u"", u"Durée de Réalisation"},
    ControlRow{"Data(1)", 5280, 2160, 9015, 375, u"", u"", u"Durée de Cuisson"},
    ControlRow{"Data(2)", 5280, 3240, 3495, 375, u"", u"", u"Nombre de Personnes"},
    ControlRow{"Data(3)", 9120, 3240, 5175, 375, u"", u"", u"Type de Plat"},
    ControlRow{"Qte(0)", 240, 5280, 1455, 375, u"", u"", u"Quantité"},
    ControlRow{"Mesure(0)", 1800, 5280, 2175, 375, u"", u"", u"Mesure"},
    ControlRow{"Ingre(0)", 4140, 5280, 10155, 375, u"", u"", u"Ingrédient"},
    ControlRow{"Prepa", 240, 5880, 14055, 4455, u"", u"", u"Préparation"},
    ControlRow{"Deco", 240, 10845, 14055, 1815, u"", u"", u"Compléments"},
};

constexpr std::array kTouches{KeyRow{"Navi(3)", Qt::CTRL | Qt::Key_P}};

/// What the fields of the page repeat.
struct Copie {
    Ribbon FicheAlbum::*champ = nullptr;
    browser::Valeur valeur;
};

constexpr std::array kCopies{
    Copie{&FicheAlbum::Cout, ValeurDe(ChampRecette::Cout)},
    Copie{&FicheAlbum::Diff, ValeurDe(ChampRecette::difficulte)},
    Copie{&FicheAlbum::Teneur, ValeurDe(ChampRecette::Teneur)},
};

// The first stands under the title of the preparation time, but it repeats the cooking time.
constexpr std::array kCopiesData{ValeurDe(ChampRecette::NCategorie), ValeurDe(ChampRecette::NCategorie),
                                 ValeurDe(ChampRecette::Nverre), ValeurDe(ChampRecette::Nreal)};

/// Pictures of Navi.
constexpr std::array kDessins{
    ":/icones/facile-precedent.argb",
    ":/icones/facile-suivant.argb",
    ":/icones/fiche-configurer.argb",
    ":/icones/fiche-imprimer.argb",
};

constexpr Twips kEntreLignes{100};
constexpr Twips kEntreBlocs{400};
constexpr int kRepetition = 40; // ms between two recipes while a button is held down

const QColor kPapier(250, 248, 241);
const QColor kCouleurLibelle(0x80, 0x80, 0xFF);

// What is read cannot be pressed: the pointer goes through it to the page, and Tab past it. A ribbon that is pressed
// all the same comes up again.
void PreparerChamp(Ribbon &champ) {
    champ.SetLook(Look::Value);
    champ.setFont(interfaceFont(Face::Verdana, kPointsValeur));
    champ.SetForeColor(kInk);
    champ.setFocusPolicy(Qt::NoFocus);
    champ.setAttribute(Qt::WA_TransparentForMouseEvents);
    whenPressed(champ, [] {});
}

} // namespace

FicheAlbum::FicheAlbum(browser::Frmmain &frm)
    : ToolWindow(QStringLiteral("FicheAlbum"), kTaille),
      CadreBouton(this, rowNamed(kControles, "CadreBouton")),
      Navi(&CadreBouton, kControles, "Navi"),
      Avis(&CadreBouton, rowNamed(kControles, "Avis")),
      Scroll(this, kControles, "Scroll"),
      Recette(Scroll(0).Content(), rowNamed(kControles, "Recette")),
      CadrePhoto(Scroll(0).Content(), rowNamed(kControles, "CadrePhoto")),
      Photo(&CadrePhoto, rowNamed(kControles, "Photo")),
      Libelle(Scroll(0).Content(), kControles, "Libelle"),
      Cout(Scroll(0).Content(), rowNamed(kControles, "Cout")),
      Diff(Scroll(0).Content(), rowNamed(kControles, "Diff")),
      Teneur(Scroll(0).Content(), rowNamed(kControles, "Teneur")),
      Data(Scroll(0).Content(), kControles, "Data"),
      Qte(Scroll(0).Content(), kControles, "Qte"),
      Mesure(Scroll(0).Content(), kControles, "Mesure"),
      Ingre(Scroll(0).Content(), kControles, "Ingre"),
      Prepa(Scroll(0).Content(), rowNamed(kControles, "Prepa")),
      Deco(Scroll(0).Content(), rowNamed(kControles, "Deco")),
      m_frm(frm) {
    SetHeading(QStringLiteral("Fiche Recette"));
    NameQuit(QStringLiteral("Revenir au menu principal"));
    Peindre();
    Brancher();
    Navi(1).setFocus();
}

void FicheAlbum::Peindre() {
    for (int index = 0; index < Navi.Count(); ++index) {
        Ribbon &bouton = Navi(index);
        bouton.SetLook(Look::Command);
        bouton.SetPicture(platform::images::resourcePicture(
            QString::fromLatin1(kDessins.at(static_cast<std::size_t>(index)))));
        bouton.setFont(interfaceFont(Face::Verdana, kPointsLibelle));
        bouton.SetForeColor(kInk);
    }
    Avis.setFont(interfaceFont(Face::Verdana, kPointsValeur));
    Avis.SetForeColor(Qt::white);
    Scroll(0).SetBackColor(kPapier);
    Recette.SetForeColor(kInk);
    Recette.SetBackColor(kPaleGround);
    CadrePhoto.setFont(interfaceFont(Face::Verdana, kPointsLibelle));
    CadrePhoto.SetForeColor(kInk);
    CadrePhoto.SetBackColor(kLightGround);
    Libelle.ForEach([](Label &libelle) {
        libelle.setFont(interfaceFont(Face::Verdana, kPointsLibelle, true));
        libelle.SetForeColor(kCouleurLibelle);
        // The line is a little taller than its place, and loses the empty room above its letters.
        libelle.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    });
    for (Ribbon *champ : {&Cout, &Diff, &Teneur, &Qte(0), &Mesure(0), &Ingre(0)}) {
        PreparerChamp(*champ);
    }
    Data.ForEach(PreparerChamp);
    Prepa.SetDefaultColor(m_frm.Saisie(0).palette().color(QPalette::Text));
    Deco.SetDefaultColor(m_frm.Saisie(1).palette().color(QPalette::Text));
    for (RichTextBox *texte : {&Prepa, &Deco}) {
        texte->setFont(interfaceFont(Face::Verdana, kPointsCorps));
        texte->setReadOnly(true);
    }
}

void FicheAlbum::Brancher() {
    connect(this, &SkinnedWindow::CloseRequested, this, &FicheAlbum::Unload);
    const std::array<std::function<void()>, 4> actions{
        [this] { Naviguer(-1); },
        [this] { Naviguer(1); },
        [this] { m_imprimante.ShowPrinter(this); },
        [this] { ImprimerFiche(); },
    };
    for (int index = 0; index < Navi.Count(); ++index) {
        whenPressed(Navi(index), actions.at(static_cast<std::size_t>(index)));
    }
    pressByKeys(*this, kTouches);
    for (const int index : {0, 1}) {
        Navi(index).setAutoRepeat(true);
        Navi(index).setAutoRepeatInterval(kRepetition);
    }
}

void FicheAlbum::ChargerFiche() {
    const List &liste = m_frm.Volet.Liste();
    const int choisie = liste.SelectedIndex();
    MontrerTitre(liste.Text(choisie));
    RemplirFiche();
    MontrerPhoto();
    OuvrirAuxBouts(choisie, liste.Count());
    Annoncer({});
}

/// Closes the way past the ends of the list. A button held down lets go there, and the focus goes to the other one, not
/// to the printer.
void FicheAlbum::OuvrirAuxBouts(int index, int nombre) {
    const std::array<bool, 2> ouverts{index != 1, index != nombre};
    for (const int i : {0, 1}) {
        Navi(i).setEnabled(Navi(i).isEnabled() || ouverts.at(static_cast<std::size_t>(i)));
    }
    for (const int i : {0, 1}) {
        if (ouverts.at(static_cast<std::size_t>(i))) {
            continue;
        }
        Navi(i).setDown(false);
        if (Navi(i).hasFocus() && ouverts.at(static_cast<std::size_t>(1 - i))) {
            Navi(1 - i).setFocus();
        }
        Navi(i).setEnabled(false);
    }
}

void FicheAlbum::MontrerTitre(const QString &titre) {
    Recette.SetCaption(titre);
    const auto fonte = [](double points) { return interfaceFont(Face::Verdana, points, true); };
    Recette.setFont(fonte(TailleQuiTient(kPointsTitre, [&](double points) {
        return QFontMetrics(fonte(points)).horizontalAdvance(titre) < Recette.width();
    })));
}

void FicheAlbum::RemplirFiche() {
    Scroll(0).SetScrollableHeight(kEntreBlocs);
    const auto texte = [this](const browser::Valeur &valeur) { return valeur.Bouton(m_frm).Caption(); };
    for (const Copie &copie : kCopies) {
        (this->*copie.champ).SetCaption(texte(copie.valeur));
    }
    for (std::size_t index = 0; index < kCopiesData.size(); ++index) {
        Data(static_cast<int>(index)).SetCaption(texte(kCopiesData[index]));
    }
    DureeReal = texte(ValeurDe(ChampRecette::NDureeReal));
    Prepa.SetTextRTF(m_frm.Saisie(browser::kPreparation.saisie).TextRTF());
    Deco.SetTextRTF(m_frm.Saisie(browser::kComplements.saisie).TextRTF());
    CopierLignes();
    Empiler();
}

void FicheAlbum::CopierLignes() {
    struct ColonneCopiee {
        Array<Ribbon> &champs, &source;
        const ControlRow &modele;
    };

    for (const ColonneCopiee &colonne :
         {ColonneCopiee{Qte, m_frm.Quantite, rowNamed(kControles, "Qte(0)")},
          ColonneCopiee{Mesure, m_frm.Mesure, rowNamed(kControles, "Mesure(0)")},
          ColonneCopiee{Ingre, m_frm.Ingre, rowNamed(kControles, "Ingre(0)")}}) {
        while (colonne.champs.Count() > 1) {
            colonne.champs.UnloadLast();
        }
        colonne.champs(0).SetCaption(colonne.source(0).Caption());
        for (int i = 1; i < colonne.source.Count(); ++i) {
            Ribbon &champ = colonne.champs.Load(colonne.modele);
            PreparerChamp(champ);
            champ.SetCaption(colonne.source(i).Caption());
            champ.SetTop(colonne.champs(i - 1).Bottom() + kEntreLignes);
            champ.show();
        }
    }
}

void FicheAlbum::Empiler() {
    Libelle(3).SetTop(Qte(Qte.Count() - 1).Bottom() + kEntreBlocs);
    Prepa.SetTop(Libelle(3).Bottom());
    Libelle(5).SetTop(Prepa.Bottom() + kEntreBlocs);
    Deco.SetTop(Libelle(5).Bottom());
    Scroll(0).SetScrollableHeight(Deco.Bottom() + kEntreBlocs);
    Scroll(0).ScrollToTop();
}

void FicheAlbum::MontrerPhoto() {
    m_frm.LecteurPhoto.Attendre();
    const QImage &image = m_frm.Photo.Picture();
    CadrePhoto.SetCaption(m_frm.CadrePhoto.Caption());
    Photo.setVisible(!image.isNull());
    Photo.SetPicture(image);
    Photo.SetTag(m_frm.Photo.Tag());
    m_frm.ImageTemp.SetPicture(image);
    if (!image.isNull()) {
        pictures::AjusterPhoto({CadrePhoto.Width(), CadrePhoto.Height()}, Photo);
    }
}

void FicheAlbum::Naviguer(int pas) {
    browser::AllerAuVoisin(m_frm, pas);
    ChargerFiche();
}

void FicheAlbum::ImprimerFiche() {
    Annoncer({});
    try {
        const QString fichier =
            m_imprimante.Print(this, Recette.Caption(), [this](QPainter &feuille, QPagedPaintDevice &papier) {
                const WaitPointer sablier;
                Imprimer(*this, feuille, papier);
            });
        Annoncer(fichier.isEmpty() ? QString() : QStringLiteral("Imprimé dans ") + fichier);
    } catch (const platform::dialogs::PrintError &echec) {
        platform::dialogs::Message(this, store::TitreProgramme.toString(), QString::fromUtf8(echec.what()),
                                   platform::dialogs::Icon::Exclamation);
    }
}

/// Shows a notice until the next recipe; of one that is too long its two ends.
void FicheAlbum::Annoncer(const QString &avis) {
    Avis.SetCaption(QFontMetrics(Avis.font()).elidedText(avis, Qt::ElideMiddle, Avis.width()));
    Avis.setToolTip(avis);
    Avis.setAccessibleName(avis);
}

} // namespace sheets
