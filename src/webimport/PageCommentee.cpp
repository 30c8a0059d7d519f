#include "PageCommentee.h"

#include "Extraction.h"
#include "Nombres.h"

#include "store/Vocabulaires.h"

#include <algorithm>

namespace webimport {

namespace {

enum : std::size_t {
    TypeDePlat,
    Personnes,
    Ingredients,
    Preparation,
    Cuisson,
    Cout,
    Difficulte,
    Vin,
    Image,
    Methode,
    Titre
};

/// As the pages have them, with their slips; nothing searches the opening marker of the method.
constexpr std::array kMarqueurs{
    Marqueurs{u"<!-- TYPE DE PLAT -->", u"<!-- FIN TYPE DE PLAT -->"},
    Marqueurs{u"<!-- nombre de personnes -->", u"<!-- fin nombre de personnes -->"},
    Marqueurs{u"<!-- debut ingredient -->", u"<!-- fin ingredient -->"},
    Marqueurs{u"<!-- Préparation -->", u"<!-- fin durée préparation -->"},
    Marqueurs{u"<!--Cuisson -->", u"<!-- fin Cuisson -->"},
    Marqueurs{u"<!-- Cout de la recette -->", u"<!-- fin cout de la recette -->"},
    Marqueurs{u"<!-- DIFFICULTE -->", u"<!-- FIN DIFFICULTE -->"},
    Marqueurs{u"<!-- CONSEIL VIN -->", u"<!-- FIN CONSEIL VIN -->"},
    Marqueurs{u"<!-- IMAGES RECETTE -->", u"<!-- FIN IMAGES RECETTE -->"},
    Marqueurs{u"<!-- CONSEIL -->", u"<!-- FIN RECETTE -->"},
    Marqueurs{u"<!-- TITRE RECETTE -->", u"<!-- TITRE RECETTE -->"},
};

constexpr std::array kRemplacementsPreparation{
    Remplacement{u".", u""},
    Remplacement{u"<BR>", u","},
    Remplacement{u"<FONT size=-2>", u""},
    Remplacement{u"</FONT>", u""},
};

/// Unlike in the preparation time, full stops stay and the font leaves a blank.
constexpr std::array kRemplacementsCuisson{
    Remplacement{u"<BR>", u","},
    Remplacement{u"<FONT size=-2>", u" "},
    Remplacement{u"</FONT>", u""},
};

constexpr std::array kRemplacementsIngredients{
    Remplacement{u" <LI>", u"\r\n- "},
    Remplacement{u"<LI>", u"- "},
    Remplacement{u"<UL>", u""},
    Remplacement{u"<DT>", u"\r\n- "},
};

constexpr std::array<QStringView, 4> kNumerosDeCout{u"01", u"02", u"03", u"04"};
constexpr std::array<QStringView, 3> kTypesDePlat{u"Entrée", u"Plat", u"Desserts"};
constexpr QStringView kCouleurSecondeLigne = u"663300";

/// The two characters of a picture's name behind a word, in which the pages keep a number; null without the
/// word.
QStringView NumeroDImage(QStringView texte, QStringView mot) {
    const qsizetype position = Position(texte, mot);
    return position == 0 ? QStringView() : Extrait(texte, position + mot.size(), 2);
}

class LecteurCommente {
public:
    explicit LecteurCommente(const PageCapturee &page) : m_page(page, kMarqueurs) {}

    ChampsPage Lire(const std::function<void(const QString &)> &afficherLigne) {
        while (m_page.LigneSuivante()) {
            afficherLigne(m_page.Ligne().texte.toString());
            // Several sections may lie on one line, and each step sees what those before it have read.
            LireTitre();
            m_page.LireImage(Image);
            LireCout();
            LireDifficulte();
            LireDurees();
            m_page.LireVin(Vin);
            LireTypeDePlat();
            LirePersonnes();
            LireIngredients();
            LireMethode();
            LireAstuces();
        }
        return m_page.Terminer();
    }

private:
    void LireTitre();
    void LireCout();
    void LireDifficulte();
    void LireDurees();
    void LireTypeDePlat();
    void LirePersonnes();
    void LireIngredients();
    void FermerIngredients();
    void LireMethode();
    void LireAstuces();

    ChampPage &Liste(IndiceListe i) { return m_page.champs.Liste[i]; }

    Extraction m_page;
    Repasses m_repassesPreparation{kRemplacementsPreparation};
    Repasses m_repassesCuisson{kRemplacementsCuisson};
};

void LecteurCommente::LireTitre() {
    QString &titre = m_page.champs.TitreRecette.texte;
    const qsizetype saut = m_page.Lire(Titre, titre) ? Position(titre, u"<BR>") : 0;
    if (saut == 0) {
        return;
    }
    ChampPage &calorie = m_page.champs.calorie;
    calorie.texte = Extrait(titre, saut + 4).toString();
    // Behind the colour and the bracket of its tag; the seventh character where the colour is missing.
    const qsizetype debut = Position(calorie.texte, kCouleurSecondeLigne) + kCouleurSecondeLigne.size() + 1;
    const qsizetype fin = Position(calorie.texte, u"</FONT>");
    if (fin > 0) {
        calorie.texte = Extrait(calorie.texte, debut, fin - debut).toString();
        calorie.MontrerInfobulle();
    }
    titre.truncate(saut - 1);
}

void LecteurCommente::LireCout() {
    ChampPage &cout = Liste(ListeCout);
    const bool lu = m_page.Lire(Cout, cout.texte);
    cout.MontrerInfobulle();
    if (lu) {
        const auto *const numero =
            std::find(kNumerosDeCout.begin(), kNumerosDeCout.end(), NumeroDImage(cout.texte, u"prix-"));
        if (numero != kNumerosDeCout.end()) {
            cout.texte = store::Cout[std::size_t(numero - kNumerosDeCout.begin()) + 1].toString();
        }
    }
}

void LecteurCommente::LireDifficulte() {
    static constexpr QStringView kMot = u"difficulte-";
    ChampPage &difficulte = Liste(ListeDifficulte);
    const bool lue = m_page.Lire(Difficulte, difficulte.texte);
    if (difficulte.texte.isEmpty()) {
        return;
    }
    difficulte.MontrerInfobulle();
    if (lue && difficulte.texte.contains(kMot)) {
        const double numero = LireNombre(NumeroDImage(difficulte.texte, kMot));
        // The second class, "Très Facile", is one that pages do not know.
        for (std::size_t classe = 1; classe <= 4; ++classe) {
            if (numero == double(classe)) {
                difficulte.texte = store::Difficulte[classe + 1].toString();
            }
        }
    }
}

void LecteurCommente::LireDurees() {
    ChampPage &preparation = m_page.champs.DReal;
    m_repassesPreparation.Passer(preparation.texte, m_page.Lire(Preparation, preparation.texte));
    preparation.MontrerInfobulle();
    ChampPage &cuisson = Liste(ListeCuisson);
    m_repassesCuisson.Passer(cuisson.texte, m_page.Lire(Cuisson, cuisson.texte));
    cuisson.MontrerInfobulle();
}

void LecteurCommente::LireTypeDePlat() {
    static constexpr QStringView kMot = u"type-";
    ChampPage &type = Liste(ListeTypeDePlat);
    m_page.ChoisirCategorie();
    if (!type.texte.isEmpty()) {
        return;
    }
    m_page.Lire(TypeDePlat, type.texte);
    type.MontrerInfobulle();
    if (type.texte.contains(kMot)) {
        const double numero = LireNombre(NumeroDImage(type.texte, kMot));
        for (std::size_t i = 0; i < kTypesDePlat.size(); ++i) {
            if (numero == double(i + 1)) {
                type.texte = kTypesDePlat[i].toString();
            }
        }
    }
}

void LecteurCommente::LirePersonnes() {
    if (m_page.LigneTient(m_page.SectionDe(Personnes).Debut())) {
        ChampPage &personnes = Liste(ListePersonnes);
        m_page.Lire(Personnes, personnes.texte);
        personnes.MontrerInfobulle();
    }
}

void LecteurCommente::LireIngredients() {
    // Drops the lines of the list's own tags, and any other in which the letters occur.
    if (m_page.dansIngredients && !m_page.LigneTient(u"DL") && !m_page.LigneTient(u"DD") &&
        !m_page.LigneTient(u"UL")) {
        m_page.ingredients.Ajouter(m_page.Ligne().texte);
    }
    // After the collecting: the line of the marker is not collected.
    if (m_page.LigneTient(m_page.SectionDe(Ingredients).Debut())) {
        m_page.dansIngredients = true;
    }
    if (m_page.LigneTient(m_page.SectionDe(Ingredients).Fin())) {
        FermerIngredients();
    }
}

/// What stands before the end tag on the closing line counts a second time when that line was collected.
void LecteurCommente::FermerIngredients() {
    const QStringView ligne = m_page.Ligne().texte;
    for (const QStringView balise : {u"</DT>", u"</LI>"}) {
        const qsizetype position = Position(ligne, balise);
        if (position > 0) {
            m_page.ingredients.Ajouter(ligne.left(position - 1));
            break;
        }
    }
    m_page.ingredients.Fermer(kRemplacementsIngredients);
    m_page.dansIngredients = false;
}

void LecteurCommente::LireMethode() {
    if (!m_page.LigneTient(m_page.SectionDe(Methode).Fin())) {
        return;
    }
    const LigneLue explication = m_page.AvantLaFin(Methode);
    m_page.etapes.Vider();
    m_page.etapes.Collecter(explication, {kImageGif, kFinImageGif, false});
    QString texte = m_page.etapes.Texte();
    if (texte.isEmpty()) {
        m_page.etapes.Collecter(explication, {kSansBord, kSansBord, false});
        texte = m_page.etapes.Texte();
        Remplacer(texte, {u"<!--", u" "});
    }
    ChampPage &methode = m_page.champs.Saisie[SaisieMethode];
    methode.texte = texte;
    methode.MontrerInfobulle();
}

void LecteurCommente::LireAstuces() {
    QString &complements = m_page.champs.Saisie[SaisieComplements].texte;
    if (m_page.DansAstuces() && complements.isEmpty()) {
        complements = m_page.LireAstuce();
    }
    m_page.ReconnaitreAstuces();
}

} // namespace

ChampsPage ExtrairePageCommentee(const PageCapturee &page,
                                 const std::function<void(const QString &ligne)> &afficherLigne) {
    return LecteurCommente(page).Lire(afficherLigne);
}

} // namespace webimport
