#include "AncienLivre.h"

#include "Livre.h"
#include "Programme.h"

#include "platform/database/BulkInsert.h"
#include "platform/jet/JetReader.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace store {

namespace {

enum class Sorte { Cle, Nombre, Texte };

struct Colonne {
    QStringView nom;
    Sorte sorte = Sorte::Nombre;
};

constexpr std::array kCocktails{
    Colonne{u"Numero", Sorte::Cle},        Colonne{u"Recette", Sorte::Texte},
    Colonne{u"NCategorie", Sorte::Nombre}, Colonne{u"Nverre", Sorte::Nombre},
    Colonne{u"Photo", Sorte::Texte},       Colonne{u"Nreal", Sorte::Nombre},
    Colonne{u"preparation", Sorte::Texte}, Colonne{u"Deco", Sorte::Texte},
    Colonne{u"Cout", Sorte::Nombre},       Colonne{u"difficulte", Sorte::Nombre},
    Colonne{u"Teneur", Sorte::Nombre},     Colonne{u"NDureeReal", Sorte::Nombre},
};
constexpr std::array kIngre{
    Colonne{u"Numero", Sorte::Nombre},
    Colonne{u"NIngre", Sorte::Nombre},
    Colonne{u"NQuantite", Sorte::Nombre},
    Colonne{u"NMesure", Sorte::Nombre},
};
constexpr std::array kCategorie{Colonne{u"NCategorie", Sorte::Cle}, Colonne{u"Categorie", Sorte::Texte}};
constexpr std::array kDureeReal{Colonne{u"NDureeReal", Sorte::Cle}, Colonne{u"DureeReal", Sorte::Texte}};
constexpr std::array kVerre{
    Colonne{u"NVerre", Sorte::Cle},   Colonne{u"Verre", Sorte::Texte},  Colonne{u"Verre2", Sorte::Texte},
    Colonne{u"Verre3", Sorte::Texte}, Colonne{u"Verre4", Sorte::Texte},
};
constexpr std::array kRealisation{Colonne{u"NRealisation", Sorte::Cle},
                                  Colonne{u"Realisation", Sorte::Texte}};
constexpr std::array kVin{Colonne{u"NVIN", Sorte::Cle}, Colonne{u"VIN", Sorte::Texte}};
constexpr std::array kIngredient{Colonne{u"NIngredient", Sorte::Cle}, Colonne{u"Ingredient", Sorte::Texte}};
constexpr std::array kQuantite{Colonne{u"NQuantite", Sorte::Cle}, Colonne{u"Quantite", Sorte::Texte}};
constexpr std::array kMesure{Colonne{u"NMesure", Sorte::Cle}, Colonne{u"Mesure", Sorte::Texte}};

struct TableAncienne {
    QStringView nom;
    std::span<const Colonne> colonnes;
};

constexpr QStringView kTableDesRecettes = u"Cocktails";

constexpr std::array kTables{
    TableAncienne{kTableDesRecettes, kCocktails},
    TableAncienne{u"Ingre", kIngre},
    TableAncienne{u"Categorie", kCategorie},
    TableAncienne{u"DureeReal", kDureeReal},
    TableAncienne{u"Verre", kVerre},
    TableAncienne{u"Realisation", kRealisation},
    TableAncienne{u"VIN", kVin},
    TableAncienne{u"Ingredient", kIngredient},
    TableAncienne{u"Quantite", kQuantite},
    TableAncienne{u"Mesure", kMesure},
};

/// Beyond it a real is not exact as a whole number.
constexpr double kLimiteDesReels = 9007199254740992.0; // 2^53

/// The whole number that a value is, spells or is nearest to; else Null.
QVariant enNombre(const QVariant &valeur) {
    if (valeur.typeId() == QMetaType::LongLong) {
        return valeur;
    }
    bool lisible = false;
    if (const qlonglong nombre = valeur.toString().trimmed().toLongLong(&lisible); lisible) {
        return nombre;
    }
    const double reel = valeur.toDouble(&lisible);
    return lisible && std::abs(reel) <= kLimiteDesReels ? QVariant(std::llround(reel)) : QVariant();
}

QVariant enTexte(const QVariant &valeur) {
    return valeur.isValid() ? QVariant(valeur.toString()) : QVariant();
}

/// Writes what is read from an old book into a new one.
class Transfert : public platform::jet::JetSink {
public:
    Transfert(const platform::database::Database &base, const ProgressionConversion &progression)
        : m_insertion(base), m_progression(progression) {}

    void table(const QString &nom, const QStringList &colonnes) override {
        terminerTable();
        const auto *const table = std::ranges::find_if(kTables, [&](const TableAncienne &candidate) {
            return candidate.nom.compare(nom, Qt::CaseInsensitive) == 0;
        });
        if (table == kTables.end()) {
            throw platform::jet::JetError(u"Une table que personne n'attend : " + nom);
        }
        m_colonnes = table->colonnes;
        m_recettes = m_recettes || table->nom == kTableDesRecettes;

        QStringList noms;
        m_places.clear();
        for (const Colonne &colonne : m_colonnes) {
            noms.append(colonne.nom.toString());
            const auto place = std::ranges::find_if(colonnes, [&](const QString &candidate) {
                return candidate.compare(colonne.nom, Qt::CaseInsensitive) == 0;
            });
            m_places.append(place == colonnes.end() ? -1 : place - colonnes.begin());
        }
        m_insertion.into(table->nom.toString(), noms);
    }

    void row(const QVariantList &valeurs) override {
        QVariantList fiche;
        for (size_t i = 0; i < m_colonnes.size(); ++i) {
            const qsizetype place = m_places[qsizetype(i)];
            const QVariant valeur = place < 0 ? QVariant() : valeurs[place];
            fiche.append(m_colonnes[i].sorte == Sorte::Texte ? enTexte(valeur) : enNombre(valeur));
        }
        if (m_colonnes.front().sorte == Sorte::Cle && !prendreNumero(fiche.front())) {
            fiche.front() = QVariant();
            m_sansNumero.append(fiche);
        } else {
            m_insertion.row(fiche);
        }
    }

    void progress(qint64 faites, qint64 total) override {
        if (m_progression) {
            m_progression(faites, total);
        }
    }

    void terminer() {
        if (!m_recettes) {
            throw platform::jet::JetError(QStringLiteral(
                "Ce fichier n'est pas un livre de recettes : il n'a pas de table « Cocktails »."));
        }
        terminerTable();
        m_insertion.commit();
    }

private:
    /// False for a number that is absent or given already.
    bool prendreNumero(const QVariant &numero) {
        if (!numero.isValid() || m_numeros.contains(numero.toLongLong())) {
            return false;
        }
        m_numeros.insert(numero.toLongLong());
        return true;
    }

    /// Adds the rows without a number: the engine gives them the next ones, which are only known now.
    void terminerTable() {
        for (const QVariantList &fiche : m_sansNumero) {
            m_insertion.row(fiche);
        }
        m_sansNumero.clear();
        m_numeros.clear();
    }

    platform::database::BulkInsert m_insertion;
    const ProgressionConversion &m_progression;
    std::span<const Colonne> m_colonnes;
    /// The place of each of our columns among those of the old table, or -1.
    QList<qsizetype> m_places;
    QSet<qlonglong> m_numeros;
    QList<QVariantList> m_sansNumero;
    bool m_recettes = false;
};

void remplir(const QString &source, const QString &destination, const ProgressionConversion &progression) {
    QStringList tables;
    for (const TableAncienne &table : kTables) {
        tables.append(table.nom.toString());
    }
    platform::database::Database base = OuvrirLivre(destination);
    Transfert transfert(base, progression);
    platform::jet::readJet(DossierProgramme() + u"/lecteur-jet", source, tables, transfert);
    transfert.terminer();
}

} // namespace

bool EstAncienLivre(const QString &chemin) {
    return platform::jet::isJetFile(chemin);
}

void ConvertirAncienLivre(const QString &source, const QString &destination,
                          const ProgressionConversion &progression) {
    CreerLivre(destination);
    try {
        remplir(source, destination, progression);
    } catch (...) {
        QFile::remove(destination);
        throw;
    }
}

} // namespace store
