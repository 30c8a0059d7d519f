#include "Extraction.h"

#include "Categories.h"

#include <array>
#include <utility>

namespace webimport {

namespace {

constexpr std::array kRemplacementsVin{Remplacement{u"<BR>", kFinDeLigne}};
constexpr QStringView kImageAstuces = u"astuces.gif";

} // namespace

Extraction::Extraction(const PageCapturee &page, std::span<const Marqueurs> marqueurs)
    : m_page(page),
      m_sections(SectionsDe(marqueurs)),
      m_lignes(page.texte),
      m_repassesVin(kRemplacementsVin) {}

void Extraction::LireImage(std::size_t section) {
    Lire(section, champs.NomPhoto);
    if (!m_imageBrute.isEmpty()) {
        return;
    }
    m_imageBrute = std::exchange(champs.NomPhoto, QString());
    if (m_imageBrute.isEmpty()) {
        return;
    }
    LireSection(m_imageBrute, u"src=", u".jpg", champs.NomPhoto);
    if (!champs.NomPhoto.isEmpty() && !champs.NomPhoto.contains(m_page.site.hote)) {
        champs.NomPhoto.prepend(m_page.site.accueil + u'/');
    }
}

void Extraction::LireVin(std::size_t section) {
    ChampPage &vin = champs.Liste[ListeVin];
    m_repassesVin.Passer(vin.texte, Lire(section, vin.texte));
    vin.MontrerInfobulle();
}

void Extraction::ChoisirCategorie() {
    QString &type = champs.Liste[ListeTypeDePlat].texte;
    if (!type.isEmpty()) {
        return;
    }
    if (!m_categorie) {
        m_categorie = CategorieDeLAdresse(m_page.adresse).toString();
    }
    type = *m_categorie;
}

LigneLue Extraction::AvantLaFin(std::size_t section) const {
    return Section(u"", m_sections[section].Fin()).Dans(m_ligne);
}

QString Extraction::LireAstuce() const {
    QString astuce;
    LireSection(m_ligne, m_astuce, astuce);
    Remplacer(astuce, {u"<BR>", kFinDeLigne});
    return astuce;
}

void Extraction::ReconnaitreAstuces() {
    if (LigneTient(kImageAstuces)) {
        m_dansAstuces = true;
    }
}

ChampsPage Extraction::Terminer() {
    champs.Lignes = ingredients.Lignes();
    return std::move(champs);
}

} // namespace webimport
