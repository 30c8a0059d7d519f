#include "LireSection.h"

#include "Positions.h"

#include <algorithm>

namespace webimport {

namespace {

LigneLue SansBlancsAutour(const LigneLue &ligne) {
    const QStringView texte = Rogner(ligne.texte);
    return {texte, ligne.majuscules.sliced(texte.data() - ligne.texte.data(), texte.size())};
}

LigneLue APartirDe(const LigneLue &ligne, qsizetype position) {
    return {Extrait(ligne.texte, position), Extrait(ligne.majuscules, position)};
}

LigneLue Partie(const LigneLue &ligne, qsizetype position, qsizetype longueur) {
    return {Extrait(ligne.texte, position, longueur), Extrait(ligne.majuscules, position, longueur)};
}

} // namespace

LignesDePage::LignesDePage(const QString &page) : m_texte(page), m_majuscules(EnMajuscules(page)) {}

bool LignesDePage::Lire(LigneLue &ligne) {
    if (m_suite >= m_texte.size()) {
        return false;
    }
    const qsizetype retour = m_texte.indexOf(u'\r', m_suite);
    const qsizetype fin = retour < 0 ? m_texte.size() : retour;
    ligne = {QStringView(m_texte).sliced(m_suite, fin - m_suite),
             QStringView(m_majuscules).sliced(m_suite, fin - m_suite)};
    const bool paire = fin + 1 < m_texte.size() && m_texte[fin + 1] == u'\n';
    m_suite = fin + (paire ? 2 : 1);
    return true;
}

Section::Section(QStringView debut, QStringView fin)
    : m_debut(debut),
      m_fin(fin),
      m_debutEnMajuscules(EnMajuscules(debut)),
      m_finEnMajuscules(EnMajuscules(fin)) {}

LigneLue Section::Dans(const LigneLue &ligne) const {
    const qsizetype p = Position(ligne.majuscules, m_debutEnMajuscules);
    if (p == 0) {
        return {};
    }
    const bool image = m_finEnMajuscules == u".JPG";
    qsizetype q = Position(ligne.majuscules, m_finEnMajuscules, p + 1);
    if (q == 0) {
        q = Position(ligne.majuscules, image ? QStringView(u".GIF") : QStringView(u"</TD>"), p + 1);
    }
    const qsizetype contenu = p + m_debut.size();
    if (q == 0) {
        return SansBlancsAutour(APartirDe(ligne, contenu));
    }
    if (image) {
        // One character more is left out in front, the quote of the attribute. The length counts from the
        // opening marker "src=", whose four characters let the extension in.
        return SansBlancsAutour(Partie(ligne, contenu + 1, q - p - 1));
    }
    return SansBlancsAutour(Partie(ligne, contenu, q - contenu));
}

std::vector<Section> SectionsDe(std::span<const Marqueurs> marqueurs) {
    std::vector<Section> sections;
    sections.reserve(marqueurs.size());
    std::transform(marqueurs.begin(), marqueurs.end(), std::back_inserter(sections),
                   [](const Marqueurs &m) { return Section(m.debut, m.fin); });
    return sections;
}

bool LireSection(const LigneLue &ligne, const Section &section, QString &champ) {
    if (!champ.isEmpty()) {
        return false;
    }
    champ = section.Dans(ligne).texte.toString();
    return !champ.isEmpty();
}

bool LireSection(QStringView ligne, QStringView debut, QStringView fin, QString &champ) {
    const QString majuscules = EnMajuscules(ligne);
    return LireSection({ligne, majuscules}, Section(debut, fin), champ);
}

} // namespace webimport
