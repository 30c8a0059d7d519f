#pragma once

#include "EtapesMethode.h"
#include "LireSection.h"
#include "Page.h"
#include "Positions.h"

#include <span>

namespace webimport {

/// What both page layouts have in common: the line that is read, the fields it fills, and the steps that do
/// not differ.
class Extraction {
public:
    /// @param page must outlive the object
    Extraction(const PageCapturee &page, std::span<const Marqueurs> marqueurs);

    /// Takes the next line; false at the end of the page.
    bool LigneSuivante() { return m_lignes.Lire(m_ligne); }

    const LigneLue &Ligne() const { return m_ligne; }

    /// With regard to case.
    bool LigneTient(QStringView texte) const { return m_ligne.texte.contains(texte); }

    const Section &SectionDe(std::size_t numero) const { return m_sections[numero]; }

    /// Reads a section into a field; true when the line has filled it.
    bool Lire(std::size_t section, QString &champ) const {
        return LireSection(m_ligne, m_sections[section], champ);
    }

    /// Reads the section of the picture, and cuts the address out of it.
    void LireImage(std::size_t section);
    /// Reads the wine advice, lines by "<BR>".
    void LireVin(std::size_t section);
    /// Gives the dish type that the address names, as long as there is none.
    void ChoisirCategorie();
    /// The line up to the closing marker of a section.
    LigneLue AvantLaFin(std::size_t section) const;
    /// The text of a tip, of the line behind its picture.
    QString LireAstuce() const;

    bool DansAstuces() const { return m_dansAstuces; }

    void QuitterAstuces() { m_dansAstuces = false; }

    /// Notes the picture that stands before a tip; it acts from the next line on.
    void ReconnaitreAstuces();
    /// The fields with the rows of ingredients.
    ChampsPage Terminer();

    ChampsPage champs;
    TexteIngredients ingredients;
    EtapesMethode etapes;
    bool dansIngredients = false;

private:
    const PageCapturee &m_page;
    std::vector<Section> m_sections;
    Section m_astuce{u"size=-2>", u"</FONT>"};
    LignesDePage m_lignes;
    LigneLue m_ligne;
    QString m_imageBrute;
    Repasses m_repassesVin;
    std::optional<QString> m_categorie;
    bool m_dansAstuces = false;
};

/// The steps of a method behind small pictures, and in the other form that pages have.
inline constexpr QStringView kFinImageGif = u"gif\">";
inline constexpr QStringView kImageGif = u".gif\">";
inline constexpr QStringView kSansBord = u"border=0>";

} // namespace webimport
