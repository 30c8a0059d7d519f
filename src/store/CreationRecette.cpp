#include "CreationRecette.h"

#include "Livre.h"
#include "Textes.h"
#include "TrouverOuCreer.h"
#include "Vocabulaires.h"

#include <optional>
#include <ranges>
#include <span>

namespace store {

using platform::database::Database;
using platform::database::Recordset;

namespace {

/// "Le Poulet" is filed as "Poulet (Le)"; other articles stay in front.
QString TitreRange(const QString &titre) {
    return titre.left(3).toUpper() == u"LE " ? SansBlancs(QStringView(titre).sliced(2)) + u" (Le)" : titre;
}

/// The code of a class; 0 for a text that is none.
int CodeDe(const QString &texte, std::span<const QStringView> classes) {
    if (SansBlancs(texte).isEmpty()) {
        return 0;
    }
    const QString cherche = texte.toUpper();
    for (std::size_t code = 0; code < classes.size(); ++code) {
        if (classes[code].toString().toUpper() == cherche) {
            return static_cast<int>(code);
        }
    }
    return 0;
}

/// The making of one recipe, as long as the book is open for it.
class Creation {
public:
    Creation(RecetteSaisie &saisie, const ModeDeCreation &mode)
        : m_saisie(saisie),
          m_mode(mode),
          m_livre(OuvrirLivre()),
          m_numero(NumeroSuivant(m_livre, kCocktails)),
          m_recettes(m_livre.OpenRecordset(QStringLiteral("SELECT * From Cocktails"))) {
        m_recettes.AddNew();
        Ecrire(ChampRecette::Numero, m_numero);
    }

    void EcrireValeurs();
    void EcrirePhoto(const std::function<QString(const QString &nom)> &enregistrerPhoto);
    void EcrireSuite();
    TextesNouveaux EcrireLignes();

private:
    void Ecrire(ChampRecette champ, const QVariant &valeur);
    void EcrireNumero(ChampRecette champ, const QString &texte);
    std::optional<qint64> Numero(const Table &table, const QString &texte, QStringList *nouveaux = nullptr);
    void EcrireLigne(Recordset &lignes, const LigneSaisie &ligne, TextesNouveaux &nouveaux);

    RecetteSaisie &m_saisie;
    const ModeDeCreation m_mode;
    Etapes m_etapes;
    Database m_livre;
    qint64 m_numero;
    Recordset m_recettes;
};

void Creation::Ecrire(ChampRecette champ, const QVariant &valeur) {
    m_etapes.Executer([&] { m_recettes.Fields(Description(champ).nom) = valeur; });
}

/// Writes the number of a text of the table that the column refers to. Without a number the column stays Null.
void Creation::EcrireNumero(ChampRecette champ, const QString &texte) {
    if (const auto numero = Numero(*Description(champ).reference, texte)) {
        Ecrire(champ, *numero);
    }
}

/// The number of a text, which gets a row if it has none; then the text is added to `nouveaux`.
std::optional<qint64> Creation::Numero(const Table &table, const QString &texte, QStringList *nouveaux) {
    const bool doublees = table.apostrophes == Apostrophes::Doublees;
    const NumeroDeTexte trouve =
        TrouverOuCreer(m_livre, table, texte, doublees ? DoublerApostrophes(texte) : texte, m_etapes);
    if (trouve.nouveau && nouveaux != nullptr) {
        nouveaux->append(texte);
    }
    return trouve.numero;
}

void Creation::EcrireValeurs() {
    m_saisie.titre.remove(u'"');
    Ecrire(ChampRecette::Recette, TitreRange(m_saisie.titre));
    EcrireNumero(ChampRecette::NCategorie, m_saisie.dureeCuisson);
    if (m_mode.dureeSansBalises) {
        m_saisie.dureeReal.replace(QStringLiteral("<B>"), QStringLiteral(" "));
        m_saisie.dureeReal.replace(QStringLiteral("</B>"), QStringLiteral(" "));
    }
    EcrireNumero(ChampRecette::NDureeReal, m_saisie.dureeReal);
    EcrireNumero(ChampRecette::Nverre, m_saisie.personnes);
    EcrireNumero(ChampRecette::Nreal, m_saisie.plat);
}

/// The name of the picture is stored whether there is a picture or not.
void Creation::EcrirePhoto(const std::function<QString(const QString &nom)> &enregistrerPhoto) {
    m_saisie.titre.remove(QStringLiteral("<BR>"));
    const QString nom = SansBlancs(m_saisie.titre) + QStringLiteral(".jpg");
    Ecrire(ChampRecette::Photo, nom);
    if (m_mode.echecsIgnores) {
        m_etapes.Tolerer();
    }
    m_etapes.Executer([&] { Ecrire(ChampRecette::Photo, enregistrerPhoto(nom)); });
}

void Creation::EcrireSuite() {
    Ecrire(ChampRecette::preparation, m_saisie.preparation);
    Ecrire(ChampRecette::Deco, m_saisie.complements);
    Ecrire(ChampRecette::Cout, CodeDe(m_saisie.cout, Cout));
    Ecrire(ChampRecette::difficulte, CodeDe(m_saisie.difficulte, Difficulte));
    QString vin = m_saisie.vin;
    if (m_mode.vinSansApostrophes) {
        vin.remove(u'\'');
    }
    EcrireNumero(ChampRecette::Teneur, vin);
    m_etapes.Executer([this] { m_recettes.Update(); });
    m_recettes.Close();
}

/// Last line first: lines are read newest first.
TextesNouveaux Creation::EcrireLignes() {
    // A deleted recipe may have left lines under the number that is now given again.
    m_etapes.Executer([this] {
        m_livre.Execute(QStringLiteral("DELETE * FROM Ingre where Numero = ") + QString::number(m_numero));
    });
    TextesNouveaux nouveaux;
    m_etapes.Executer([&] {
        Recordset lignes = m_livre.OpenRecordset(QStringLiteral("SELECT * From Ingre"));
        for (const LigneSaisie &ligne : m_saisie.lignes | std::views::reverse) {
            if (!ligne.Vide()) {
                EcrireLigne(lignes, ligne, nouveaux);
            }
        }
    });
    return nouveaux;
}

/// A field that was left empty gets the number 0, which no row has.
void Creation::EcrireLigne(Recordset &lignes, const LigneSaisie &ligne, TextesNouveaux &nouveaux) {
    const auto ecrire = [&](QStringView colonne, qint64 numero) {
        m_etapes.Executer([&] { lignes.Fields(colonne) = numero; });
    };
    m_etapes.Executer([&] { lignes.AddNew(); });
    ecrire(u"Numero", m_numero);
    ecrire(u"NQuantite", Numero(kQuantite, ligne.quantite, &nouveaux.quantites).value_or(0));
    ecrire(u"NMesure", Numero(kMesure, ligne.mesure, &nouveaux.mesures).value_or(0));
    ecrire(u"NIngre", Numero(kIngredient, ligne.ingredient, &nouveaux.ingredients).value_or(0));
    m_etapes.Executer([&] { lignes.Update(); });
}

} // namespace

TextesNouveaux EnregistrerRecette(RecetteSaisie &saisie, const ModeDeCreation &mode,
                                  const std::function<QString(const QString &nom)> &enregistrerPhoto) {
    Creation creation(saisie, mode);
    creation.EcrireValeurs();
    creation.EcrirePhoto(enregistrerPhoto);
    creation.EcrireSuite();
    return creation.EcrireLignes();
}

} // namespace store
