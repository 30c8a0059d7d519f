#pragma once

#include "platform/controls/ControlArray.h"
#include "platform/controls/DropList.h"
#include "platform/controls/Labels.h"
#include "platform/controls/Picture.h"
#include "platform/controls/RibbonButton.h"
#include "platform/controls/RichTextBox.h"
#include "platform/controls/ScrollPanel.h"
#include "platform/controls/TextBox.h"
#include "platform/controls/ToolWindow.h"
#include "store/CreationRecette.h"
#include "webimport/Page.h"

#include <memory>

namespace browser {
class Frmmain;
}

namespace platform::webview {
class Engine;
class View;
} // namespace platform::webview

namespace webimport::facile {

/// The window in which a recipe is taken from a page of the web. It has two faces: the browser, and the recipe that was
/// read, which can be corrected. It holds controls; what it does is in Analyse.h (reading the page) and CreerRecette.h
/// (the save). It closes itself, and keeps its page and its fields for the next time.
class Facile : public platform::controls::ToolWindow {
    Q_OBJECT

public:
    Facile(browser::Frmmain &frm, platform::webview::Engine &moteur);
    ~Facile() override;

    using Label = platform::controls::Label;
    using Panel = platform::controls::Panel;
    using Ribbon = platform::controls::Ribbon;
    using TextBox = platform::controls::TextBox;
    using DropList = platform::controls::DropList;
    template <class Control>
    using Array = platform::controls::ControlArray<Control>;

    /// The main window, to which the recipes go.
    browser::Frmmain &Principale;
    platform::webview::Engine &Moteur;

    // Toolbar: back, forward, site of the partner, reading of the page; and the panels beneath.
    Array<Ribbon> Navi;
    Ribbon GotO1, Analyse;
    Array<Panel> LBtn;

    /// Progress of the first analysis, under Status.
    Panel Pb;
    Label LPB;
    Panel Status;

    // The recipe face.
    Panel Fond;
    Array<Label> Libelle;
    TextBox TitreRecette;
    /// Second line of the title.
    Label calorie;
    Ribbon Revenir, Creer;
    Array<Panel> LFiche;
    /// Preparation time.
    TextBox DReal;
    /// Cost, difficulty, wine advice, cooking time, persons, dish type.
    Array<TextBox> Liste;
    Panel CadrePhoto;
    platform::controls::Image Photo;
    /// Address of the picture on the web.
    TextBox NomPhoto;
    Array<platform::controls::ScrollPanel> Scroll;
    /// The ingredient lines: quantity, measure, ingredient.
    Array<TextBox> Qte, Qte2, Ingre;
    /// Method, further remarks.
    Array<platform::controls::RichTextBox> Saisie;
    /// Texts that were new to the book.
    DropList LQte, LQte2, LIngre;

    /// Whether the last press of Creer stored a recipe.
    bool RecetteCreee = false;
    /// The picture fetched last.
    QByteArray OctetsPhoto;
    MemoireImport Memoire;

    /// One further row of ingredients.
    void ChargerLigne(platform::controls::Twips haut);

    /// Empties what the cook may have corrected, but for the preparation time.
    void ViderTextes();

    /// Shows a picture in its frame, or none for a null one.
    void MontrerPhoto(const QImage &image);

    void MontrerNavigation(bool visible);
    void MontrerAnalyse(bool visible);
    void MontrerFiche();
    void MontrerNavigateur();

protected:
    bool MayEscape() override;

private:
    void Peindre();
    void PeindreFiche();
    void OrdonnerFiche();
    void OuvrirNavigateur();
    void Brancher();
    void ReconnaitrePage();
    void DireEtatDeLaPage(const QString &etat);
    void EcrireStatut(const QString &texte);
    void PresserRevenir();
    void Quitter();

    QString m_etat;             ///< of the page, which the link under the pointer hides meanwhile
    store::RecetteSaisie m_lue; ///< from the page, before it is corrected
    int m_page = 0;             ///< counts the pages, so that a late answer is not taken for the next one's

public:
    /// WebBrowser1. Last, because its end still calls its events.
    std::unique_ptr<platform::webview::View> Navigateur;
};

} // namespace webimport::facile
