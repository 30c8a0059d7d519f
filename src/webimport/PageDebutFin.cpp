#include "PageDebutFin.h"

#include "Extraction.h"

#include "store/Vocabulaires.h"

#include <algorithm>

namespace webimport {

namespace {

enum : std::size_t {
    Titre,
    Image,
    Personnes,
    Cout,
    Difficulte,
    Preparation,
    Cuisson,
    Vin,
    Ingredients,
    Methode
};

/// As the pages have them, each blank and slip included; cost and difficulty end with their visible labels.
constexpr std::array kMarqueurs{
    Marqueurs{u"<!--DEBUT  TITRE DE LA RECETTE -->", u"<!-- FIN TITRE DE LA RECETTE -->"},
    Marqueurs{u"<!--DEBUT IMAGE DE LA RECETTE -->", u"<!-- FIN IMAGE DE LA RECETTE -->"},
    Marqueurs{u"<!-- DEBUT NOMBRE DE PERSONNE -->", u"<!-- FIN NOMBRE PERSONNE -->"},
    Marqueurs{u"<!-- A REPETER SI PLUS CHERE -->", u"Budget</FONT>"},
    Marqueurs{u"<!-- A REPETER SI PLUS DIFFICILE -->", u"Difficultés</FONT>"},
    Marqueurs{u"<!-- DEBUT DUREE DE DUREE DE REALISATION -->", u"<!-- FIN DUREE DE DUREE DE REALISATION -->"},
    Marqueurs{u"<!-- DEBUT DUREE CUISSON -->", u"<!-- FIN DUREE CUISSON -->"},
    Marqueurs{u"<!-- DEBUT CONSEIL VIN -->", u"<!-- FIN CONSEIL VIN -->"},
    Marqueurs{u"<!-- DEBUT INGREDIENTS  -->", u"<!-- FIN INGREDIENTS -->"},
    Marqueurs{u"<!-- DEBUT EXPLICATION RECETTE -->", u"<!-- FIN EXPLICATION RECETTE -->"},
};

/// Ends the ingredients as well as their marker.
constexpr QStringView kFinIngredient = u"<!-- FIN INGREDIENT -->";

constexpr std::array kRemplacementsPreparation{
    Remplacement{u".", u""},
    Remplacement{u"<BR>", u","},
};

constexpr std::array kRemplacementsCuisson{Remplacement{u"<BR>", u","}};

/// An item that opens with a bracket is joined to the one before it.
constexpr std::array kRemplacementsIngredients{
    Remplacement{u"<DT>(", u"("}, Remplacement{u" <DT>", u"\r\n- "}, Remplacement{u"<DT>", u"- "},
    Remplacement{u"<LI>(", u"("}, Remplacement{u" <LI>", u"\r\n- "}, Remplacement{u"<LI>", u"- "},
    Remplacement{u"<UL>", u""},
};

/// A line with one of these is none of ingredients.
constexpr std::array<QStringView, 7> kHorsIngredients{u"<DL>",   u"DD",  u"<UL", u"border=0",
                                                      u"<TBODY", u"<TR", u"<TD"};

constexpr QStringView kCouleurSecondeLigne = u"ffcc00";
constexpr QStringView kTiret = u"- ";
constexpr std::size_t kImagesAuPlus = 4;

/// How often a picture is repeated. One at the very first position does not count.
std::size_t CompterImages(QStringView texte, QStringView image) {
    std::size_t nombre = 0;
    for (qsizetype p = Position(texte, image, 2); p > 0; p = Position(texte, image, p + 2)) {
        ++nombre;
    }
    return nombre;
}

class LecteurDebutFin {
public:
    LecteurDebutFin(const PageCapturee &page, MemoireImport &memoire)
        : m_page(page, kMarqueurs), m_memoire(memoire) {}

    ChampsPage Lire() {
        while (m_page.LigneSuivante()) {
            // Several sections may lie on one line, and each step sees what those before it have read.
            LireTitre();
            m_page.LireImage(Image);
            LireNiveau(Cout, ListeCout, u"images/cout", std::span(store::Cout).subspan<1>());
            LireNiveau(Difficulte, ListeDifficulte, u"images/diff",
                       std::span(store::Difficulte).subspan<2>());
            LireDurees();
            m_page.LireVin(Vin);
            LireTypeDePlat();
            LirePersonnes();
            LireIngredients();
            LireMethode();
            LireAstuces();
        }
        if (m_methodeLue) {
            ChampPage &methode = m_page.champs.Saisie[SaisieMethode];
            methode.texte = m_page.etapes.Texte();
            methode.MontrerInfobulle();
        }
        return m_page.Terminer();
    }

private:
    void LireTitre();
    void LireNiveau(std::size_t section, IndiceListe champ, QStringView image,
                    std::span<const QStringView> mots);
    void LireDurees();
    void LireTypeDePlat();
    void LirePersonnes();
    void LireIngredients();
    void CollecterIngredients();
    void LireMethode();
    void LireMethodeSansBord();
    void LireAstuces();

    ChampPage &Liste(IndiceListe i) { return m_page.champs.Liste[i]; }

    Extraction m_page;
    MemoireImport &m_memoire;
    Repasses m_repassesPreparation{kRemplacementsPreparation};
    Repasses m_repassesCuisson{kRemplacementsCuisson};
    /// A line has set the method to the steps collected so far; it takes them in at the end of the page,
    /// since a copy for each line would cost the square of its length.
    bool m_methodeLue = false;
};

void LecteurDebutFin::LireTitre() {
    QString &titre = m_page.champs.TitreRecette.texte;
    const qsizetype saut = m_page.Lire(Titre, titre) ? Position(titre, u"<BR>") : 0;
    if (saut == 0) {
        return;
    }
    ChampPage &calorie = m_page.champs.calorie;
    calorie.texte = Rogner(Extrait(titre, saut + 4)).toString();
    if (calorie.texte.isEmpty()) {
        return;
    }
    // Behind the colour and the bracket of its tag. A second line without a closed font is an error here.
    const qsizetype debut = Position(calorie.texte, kCouleurSecondeLigne) + kCouleurSecondeLigne.size() + 1;
    const qsizetype fin = Position(calorie.texte, u"</FONT>");
    calorie.texte = Extrait(calorie.texte, debut, fin - debut).toString();
    calorie.MontrerInfobulle();
    titre.truncate(saut - 1);
}

/// The level of cost or difficulty is the number of times that its picture is repeated.
void LecteurDebutFin::LireNiveau(std::size_t section, IndiceListe champ, QStringView image,
                                 std::span<const QStringView> mots) {
    ChampPage &niveau = Liste(champ);
    const bool lu = m_page.Lire(section, niveau.texte);
    if (niveau.texte.isEmpty()) {
        return;
    }
    niveau.MontrerInfobulle();
    const std::size_t nombre = lu ? CompterImages(niveau.texte, image) : 0;
    if (nombre >= 1 && nombre <= kImagesAuPlus) {
        niveau.texte = mots[nombre - 1].toString();
    }
}

void LecteurDebutFin::LireDurees() {
    ChampPage &preparation = m_page.champs.DReal;
    const bool lue = m_page.Lire(Preparation, preparation.texte);
    if (!preparation.texte.isEmpty()) {
        m_repassesPreparation.Passer(preparation.texte, lue);
        preparation.MontrerInfobulle();
    }
    ChampPage &cuisson = Liste(ListeCuisson);
    m_repassesCuisson.Passer(cuisson.texte, m_page.Lire(Cuisson, cuisson.texte));
    cuisson.MontrerInfobulle();
}

/// This layout has no section for the dish type: unless the address has named it by then, the title fills it.
void LecteurDebutFin::LireTypeDePlat() {
    m_page.Lire(Titre, Liste(ListeTypeDePlat).texte);
    m_page.ChoisirCategorie();
}

void LecteurDebutFin::LirePersonnes() {
    ChampPage &personnes = Liste(ListePersonnes);
    m_page.Lire(Personnes, personnes.texte);
    personnes.MontrerInfobulle();
}

void LecteurDebutFin::LireIngredients() {
    const Section &section = m_page.SectionDe(Ingredients);
    const bool ouvre = m_page.LigneTient(section.Debut());
    // Before the collecting: what stands behind the marker belongs to it.
    if (ouvre) {
        m_page.dansIngredients = true;
    }
    if (m_page.dansIngredients &&
        std::none_of(kHorsIngredients.begin(), kHorsIngredients.end(),
                     [this](QStringView balise) { return m_page.LigneTient(balise); })) {
        CollecterIngredients();
    }
    // All on the line of the persons, with line breaks in between.
    if (ouvre && m_page.LigneTient(m_page.SectionDe(Personnes).Fin())) {
        QString texte;
        m_page.Lire(Ingredients, texte);
        Remplacer(texte, {u"<BR>", kTiret});
        Remplacer(texte, {u",", u" "});
        m_page.ingredients.RemplacerPar(texte);
        m_page.dansIngredients = false;
    }
    if (m_page.LigneTient(section.Fin()) || m_page.LigneTient(kFinIngredient)) {
        m_page.ingredients.Rogner();
        m_page.ingredients.Fermer(kRemplacementsIngredients);
        m_page.dansIngredients = false;
    }
}

void LecteurDebutFin::CollecterIngredients() {
    const QStringView ligne = m_page.Ligne().texte;
    TexteIngredients &texte = m_page.ingredients;
    for (const QStringView balise : {u"</LI>", u"</DT>"}) {
        const qsizetype position = Position(ligne, balise);
        if (position > 0) {
            texte.Ajouter(ligne.left(position - 1));
            return;
        }
    }
    const QStringView ouverture = m_page.SectionDe(Ingredients).Debut();
    const qsizetype position = Position(ligne, ouverture);
    if (position == 0) {
        texte.Ajouter(u" ");
        texte.Ajouter(ligne);
        return;
    }
    const QStringView reste = Extrait(ligne, position + ouverture.size());
    if (!Rogner(reste).startsWith(kTiret)) {
        texte.Ajouter(kTiret);
    }
    texte.Ajouter(reste);
}

void LecteurDebutFin::LireMethode() {
    const Section &section = m_page.SectionDe(Methode);
    const bool ouvre = m_page.Ligne().majuscules.contains(section.DebutEnMajuscules());
    const bool ferme = m_page.Ligne().majuscules.contains(section.FinEnMajuscules());
    if (!ouvre && !ferme && !m_memoire.methodeOuverte) {
        return;
    }
    m_page.etapes.Collecter(m_page.AvantLaFin(Methode), {kImageGif, kFinImageGif, true});
    m_methodeLue = true;
    if (m_page.etapes.Texte().isEmpty() && m_memoire.methodeOuverte) {
        LireMethodeSansBord();
    }
    if (ouvre || ferme) {
        m_memoire.methodeOuverte = !ferme;
    }
}

/// The other form of the steps, in which the text behind a line break in the last one is the tip.
void LecteurDebutFin::LireMethodeSansBord() {
    const LigneLue explication = m_page.AvantLaFin(Methode);
    const qsizetype posEtape = m_page.etapes.Collecter(explication, {kSansBord, kSansBord, false});
    if (posEtape == 1) {
        return;
    }
    const qsizetype saut = Position(explication.texte, u"<BR>", posEtape - 1);
    // A line break right behind the picture ends no step.
    if (saut > posEtape - 1 + kSansBord.size()) {
        QString &complements = m_page.champs.Saisie[SaisieComplements].texte;
        complements = Extrait(explication.texte, saut + 4).toString();
        Remplacer(complements, {u"<BR>", kFinDeLigne});
    }
}

void LecteurDebutFin::LireAstuces() {
    if (m_page.DansAstuces()) {
        m_page.champs.Saisie[SaisieComplements].texte = m_page.LireAstuce();
        m_page.QuitterAstuces();
    }
    m_page.ReconnaitreAstuces();
}

} // namespace

ChampsPage ExtrairePageDebutFin(const PageCapturee &page, MemoireImport &memoire) {
    return LecteurDebutFin(page, memoire).Lire();
}

} // namespace webimport
