#pragma once

#include "Volet.h"

#include "pictures/LecteurPhoto.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/DropList.h"
#include "platform/controls/Labels.h"
#include "platform/controls/ListView.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/controls/RichTextBox.h"
#include "platform/controls/ScrollPanel.h"
#include "platform/controls/SkinnedWindow.h"

#include <vector>

namespace browser {

/// The main window: the recipes in eight sort views at the left, the recipe chosen at the right. It holds
/// controls and what they cannot hold; what it does is in Vues.h (lists), Fiche.h (recipe), Valeurs.h and Lignes.h
/// (changing it where it is shown) and Operations.h (menus, photo).
class Frmmain : public platform::controls::SkinnedWindow {
    Q_OBJECT

public:
    Frmmain();

    /// Column headed "Titre" of both lists.
    void PreparerListes();
    /// Fills the lists that offer the fixed vocabularies; a row's place is its code.
    void RemplirVocabulaires();

    /// The pictures of the views, number view + 1.
    const std::vector<QPixmap> &Img() const { return m_img; }

    /// The hand that points at a row.
    const QCursor &CurseurMain() const { return m_main; }

private:
    std::vector<QPixmap> m_img;
    QCursor m_main;

public:
    using Label = platform::controls::Label;
    using List = platform::controls::List;
    using Image = platform::controls::Image;
    using Panel = platform::controls::Panel;
    using Ribbon = platform::controls::Ribbon;
    using DropList = platform::controls::DropList;
    using ScrollPanel = platform::controls::ScrollPanel;
    using RichTextBox = platform::controls::RichTextBox;
    template <class Control>
    using Array = platform::controls::ControlArray<Control>;

    // Title band and toolbar.
    Image Embleme, Enseigne;
    Label LPatch;
    Ribbon Btn_Min, Btn_Quit;
    Array<Ribbon> Outils;
    Array<Panel> LBtn;

    // The views.
    Array<Ribbon> Bouton;
    Label LTGauche;
    List Liste;
    Label LTCentre2;
    List LFilms;
    Label LBGauche;

    // The place of the recipe: its name, the theme of a group, the scrolling detail above it.
    Image Icone_DEco;
    Label LTDroit;
    Array<ScrollPanel> Scroll;
    Array<Image> Cadre;

    // The detail, in Scroll(0).
    Panel CadrePhoto;
    Image Photo;
    /// Hidden; the photo last shown in any window, in its natural size.
    Image ImageTemp;
    /// Reads Photo's picture.
    pictures::LecteurPhoto LecteurPhoto;
    Array<Label> Libelle;
    Array<Ribbon> Data;
    Array<Ribbon> Quantite, Mesure, Ingre;
    Array<RichTextBox> Saisie;
    DropList LCategorie, LDureeReal, LVerre, LMateriel, LCout, LDiff, LTeneur;
    DropList LQuantite, LMesure, LIngre;

    // The loading panel.
    Panel Chargement;
    Label Label1;
    Panel Pb;

    /// What the place of the recipe shows.
    browser::Volet Volet{*this};

    /// Text and number of the selected row of Liste.
    QString TitreCourant;
    qint64 NumeroCourant = 0;
    /// Folder of the picture file chosen last; empty before the first.
    QString DossierImages;
    /// Colour of the highlighted row of Liste.
    QColor CouleurSelection;

    void SetCouleurSelection(const QColor &couleur);

    /// Gives the keyboard to the list whose row names what is shown, in which typing goes to a row.
    void RevenirALaListe();

    /// The drop lists of the detail.
    std::vector<DropList *> ListesModif();

    /// One further row of the ingredient buttons, as the window's design has them, hidden.
    void ChargerLigne();

Q_SIGNALS:
    /// The close button was pressed; Value is still true.
    void FermetureDemandee();
    /// The minimise button was pressed; Value is still true.
    void ReductionDemandee();
    /// A tool of the toolbar was pressed; Value is still true.
    void OutilPresse(int index);
    /// A new recipe is to be made, by the menu of a list.
    void CreationDemandee();

private:
    void Peindre();
    void PeindreOutils();
    void PeindreFiche();
    void BrancherBoutons();
    void BrancherListes();
    void BrancherFiche();
};

} // namespace browser
