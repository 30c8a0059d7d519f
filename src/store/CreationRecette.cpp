#include "CreationRecette.h"

#include "Livre.h"
#include "Textes.h"
#include "Vocabulaires.h"

#include <algorithm>
#include <optional>
#include <span>

namespace store {

using platform::database::Database;
using platform::database::Recordset;

namespace {

/// How a new row of a lookup table holds the apostrophes of its text. A text that they were doubled in is not found
/// again by the text itself, and gets another row each time.
enum class Apostrophes { Doublees, Simples };

/// Whether the table is searched for the empty text too, which never finds or makes anything.
enum class TexteVide { Cherche, Ignore };

/// A lookup table: its query is `recherche`, the text and `ordre`.
struct TableDeTextes {
    QStringView recherche, ordre, maximum, lignes, cle, texte;
    Apostrophes apostrophes = Apostrophes::Doublees;
    TexteVide vide = TexteVide::Ignore;
};

constexpr TableDeTextes kCategorie{u"SELECT * From Categorie where Categorie = '",
                                   u"' order by Categorie asc",
                                   u"SELECT max(NCategorie) From Categorie",
                                   u"SELECT * From Categorie",
                                   u"NCategorie",
                                   u"Categorie",
                                   Apostrophes::Doublees,
                                   TexteVide::Cherche};
constexpr TableDeTextes kDureeReal{u"SELECT * From DureeReal where DureeReal = '",
                                   u"' order by DureeReal asc",
                                   u"SELECT max(NDureeReal) From DureeReal",
                                   u"SELECT * From DureeReal",
                                   u"NDureeReal",
                                   u"DureeReal",
                                   Apostrophes::Doublees,
                                   TexteVide::Cherche};
constexpr TableDeTextes kVerre{u"SELECT * From verre where verre = '",
                               u"' order by verre asc",
                               u"SELECT max(Nverre) From Verre",
                               u"SELECT * From verre",
                               u"Nverre",
                               u"Verre"};
constexpr TableDeTextes kRealisation{u"SELECT * From Realisation where Realisation = '",
                                     u"' order by Realisation asc",
                                     u"SELECT max(NRealisation) From Realisation",
                                     u"SELECT * From realisation",
                                     u"nrealisation",
                                     u"Realisation"};
constexpr TableDeTextes kVin{u"SELECT * From VIN where VIN= '",
                             u"' order by VIN asc",
                             u"SELECT max(NVIN) From VIN",
                             u"SELECT * From VIN",
                             u"NVIN",
                             u"VIN"};
constexpr TableDeTextes kQuantite{u"SELECT * From Quantite where Quantite = '",
                                  u"' order by Quantite asc",
                                  u"SELECT max(NQuantite) From Quantite",
                                  u"SELECT * From Quantite",
                                  u"NQuantite",
                                  u"Quantite"};
constexpr TableDeTextes kMesure{u"SELECT * From Mesure where Mesure = '",
                                u"' order by Mesure asc",
                                u"SELECT max(NMesure) From Mesure",
                                u"SELECT * From Mesure",
                                u"NMesure",
                                u"Mesure",
                                Apostrophes::Simples};
constexpr TableDeTextes kIngredient{u"SELECT * From Ingredient where Ingredient = '",
                                    u"' order by Ingredient asc",
                                    u"SELECT max(NIngredient) From Ingredient",
                                    u"SELECT * From Ingredient",
                                    u"NIngredient",
                                    u"Ingredient",
                                    Apostrophes::Simples};

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
          m_base(OuvrirLivre()),
          m_numero(NumeroSuivant(u"SELECT max(Numero) From Cocktails")),
          m_recettes(m_base.OpenRecordset(QStringLiteral("SELECT * From Cocktails"))) {
        m_recettes.AddNew();
        m_recettes.Fields(u"Numero") = m_numero;
    }

    void EcrireValeurs();
    void EcrirePhoto(const std::function<QString(const QString &nom)> &enregistrerPhoto);
    void EcrireSuite();
    TextesNouveaux EcrireLignes();

private:
    /// Runs a statement. Once failures are ignored, a failing one is passed over, and those behind it still run.
    template <class Instruction>
    void Executer(Instruction instruction) {
        try {
            instruction();
        } catch (const std::exception &) {
            if (!m_tolerante) {
                throw;
            }
        }
    }

    qint64 NumeroSuivant(QStringView requete);
    void Ecrire(QStringView colonne, const QVariant &valeur);
    void EcrireNumero(QStringView colonne, std::optional<qint64> numero);
    std::optional<qint64> Chercher(const TableDeTextes &table, const QString &texte,
                                   QStringList *nouveaux = nullptr);
    std::optional<qint64> Ajouter(const TableDeTextes &table, const QString &texte);
    void EcrireLigne(std::optional<Recordset> &lignes, const LigneSaisie &ligne, TextesNouveaux &nouveaux);

    RecetteSaisie &m_saisie;
    const ModeDeCreation m_mode;
    bool m_tolerante = false;
    Database m_base;
    qint64 m_numero;
    Recordset m_recettes;
};

qint64 Creation::NumeroSuivant(QStringView requete) {
    Recordset maximum = m_base.OpenRecordset(requete.toString());
    return maximum.Fields(0).IsNull() ? 1 : maximum.Fields(0).Number() + 1;
}

void Creation::Ecrire(QStringView colonne, const QVariant &valeur) {
    Executer([&] { m_recettes.Fields(colonne) = valeur; });
}

/// Without a number the column stays Null.
void Creation::EcrireNumero(QStringView colonne, std::optional<qint64> numero) {
    if (numero) {
        Ecrire(colonne, *numero);
    }
}

/// The number of a text, which gets a row if it has none; a text that has got one is added to `nouveaux`. No number
/// for the empty text.
std::optional<qint64> Creation::Chercher(const TableDeTextes &table, const QString &texte,
                                         QStringList *nouveaux) {
    const QString echappe = DoublerApostrophes(texte);
    if (echappe.isEmpty() && table.vide == TexteVide::Ignore) {
        return {};
    }
    std::optional<Recordset> trouvees;
    Executer([&] { trouvees = m_base.OpenRecordset(table.recherche + echappe + table.ordre); });
    if (echappe.isEmpty() || !trouvees) {
        return {};
    }
    std::optional<qint64> numero;
    if (trouvees->RecordCount() > 0) {
        Executer([&] { numero = trouvees->Fields(table.cle).Number(); });
        return numero;
    }
    numero = Ajouter(table, table.apostrophes == Apostrophes::Doublees ? echappe : texte);
    if (nouveaux != nullptr) {
        nouveaux->append(texte);
    }
    return numero;
}

std::optional<qint64> Creation::Ajouter(const TableDeTextes &table, const QString &texte) {
    std::optional<qint64> numero;
    Executer([&] { numero = NumeroSuivant(table.maximum); });
    std::optional<Recordset> lignes;
    Executer([&] { lignes = m_base.OpenRecordset(table.lignes.toString()); });
    Executer([&] { lignes.value().AddNew(); });
    Executer([&] { lignes.value().Fields(table.cle) = numero.value(); });
    Executer([&] { lignes.value().Fields(table.texte) = texte; });
    Executer([&] { lignes.value().Update(); });
    Executer([&] { lignes.value().SetBookmark(lignes.value().LastModified()); });
    return numero;
}

void Creation::EcrireValeurs() {
    m_saisie.titre.remove(u'"');
    Ecrire(u"Recette", TitreRange(m_saisie.titre));
    EcrireNumero(u"NCategorie", Chercher(kCategorie, m_saisie.dureeCuisson));
    if (m_mode.dureeSansBalises) {
        m_saisie.dureeReal.replace(QStringLiteral("<B>"), QStringLiteral(" "));
        m_saisie.dureeReal.replace(QStringLiteral("</B>"), QStringLiteral(" "));
    }
    EcrireNumero(u"NDureeReal", Chercher(kDureeReal, m_saisie.dureeReal));
    EcrireNumero(u"Nverre", Chercher(kVerre, m_saisie.personnes));
    EcrireNumero(u"Nreal", Chercher(kRealisation, m_saisie.plat));
}

/// The name of the picture is stored whether there is a picture or not.
void Creation::EcrirePhoto(const std::function<QString(const QString &nom)> &enregistrerPhoto) {
    m_saisie.titre.remove(QStringLiteral("<BR>"));
    const QString nom = SansBlancs(m_saisie.titre) + QStringLiteral(".jpg");
    Ecrire(u"Photo", nom);
    m_tolerante = m_mode.echecsIgnores;
    Executer([&] { Ecrire(u"Photo", enregistrerPhoto(nom)); });
}

void Creation::EcrireSuite() {
    Ecrire(u"preparation", m_saisie.preparation);
    Ecrire(u"Deco", m_saisie.complements);
    Ecrire(u"Cout", CodeDe(m_saisie.cout, Cout));
    Ecrire(u"difficulte", CodeDe(m_saisie.difficulte, Difficulte));
    QString vin = m_saisie.vin;
    if (m_mode.vinSansApostrophes) {
        vin.remove(u'\'');
    }
    EcrireNumero(u"Teneur", Chercher(kVin, vin));
    Executer([this] { m_recettes.Update(); });
    m_recettes.Close();
}

/// Last line first: lines are read newest first.
TextesNouveaux Creation::EcrireLignes() {
    // A deleted recipe may have left lines under the number that is now given again.
    Executer([this] {
        m_base.Execute(QStringLiteral("DELETE * FROM Ingre where Numero = ") + QString::number(m_numero));
    });
    TextesNouveaux nouveaux;
    std::optional<Recordset> lignes;
    Executer([&] { lignes = m_base.OpenRecordset(QStringLiteral("SELECT * From Ingre")); });
    std::for_each(m_saisie.lignes.crbegin(), m_saisie.lignes.crend(), [&](const LigneSaisie &ligne) {
        if (!ligne.vide()) {
            EcrireLigne(lignes, ligne, nouveaux);
        }
    });
    return nouveaux;
}

/// A field that was left empty gets the number 0, which no row has.
void Creation::EcrireLigne(std::optional<Recordset> &lignes, const LigneSaisie &ligne,
                           TextesNouveaux &nouveaux) {
    const auto ecrire = [&](QStringView colonne, qint64 numero) {
        Executer([&] { lignes.value().Fields(colonne) = numero; });
    };
    Executer([&] { lignes.value().AddNew(); });
    ecrire(u"Numero", m_numero);
    ecrire(u"NQuantite", Chercher(kQuantite, ligne.quantite, &nouveaux.quantites).value_or(0));
    ecrire(u"NMesure", Chercher(kMesure, ligne.mesure, &nouveaux.mesures).value_or(0));
    ecrire(u"NIngre", Chercher(kIngredient, ligne.ingredient, &nouveaux.ingredients).value_or(0));
    Executer([&] { lignes.value().Update(); });
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
