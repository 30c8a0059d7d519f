#include "AncienLivre.h"

#include "CopieFichier.h"
#include "Livre.h"
#include "Programme.h"
#include "Schema.h"

#include "platform/database/BulkInsert.h"
#include "platform/jet/JetReader.h"

#include <QFile>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace store {

namespace {

/// Beyond it a real is not exact as a whole number.
constexpr double kLimiteDesReels = 9007199254740992.0; // 2^53

/// The whole number that a value is, spells or is nearest to; else Null.
QVariant EnNombre(const QVariant &valeur) {
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

QVariant EnTexte(const QVariant &valeur) {
    return valeur.isValid() ? QVariant(valeur.toString()) : QVariant();
}

/// Writes what is read from an old book into a new one.
class Transfert : public platform::jet::JetSink {
public:
    Transfert(const platform::database::Database &base, const ProgressionConversion &progression)
        : m_insertion(base), m_progression(progression) {}

    void table(const QString &nom, const QStringList &colonnes) override {
        TerminerTable();
        const auto *const trouvee = std::ranges::find_if(kTables, [&](const Table *candidate) {
            return candidate->nom.compare(nom, Qt::CaseInsensitive) == 0;
        });
        if (trouvee == kTables.end()) {
            throw platform::jet::JetError(u"Une table que personne n'attend : " + nom);
        }
        m_table = *trouvee;
        m_lues.insert(m_table);

        QStringList noms;
        m_places.clear();
        for (const Champ &champ : m_table->champs) {
            noms.append(champ.nom.toString());
            const auto place = std::ranges::find_if(colonnes, [&](const QString &candidate) {
                return candidate.compare(champ.nom, Qt::CaseInsensitive) == 0;
            });
            m_places.append(place == colonnes.end() ? -1 : place - colonnes.begin());
        }
        m_insertion.into(m_table->nom.toString(), noms);
    }

    void row(const QVariantList &valeurs) override {
        QVariantList fiche;
        for (size_t i = 0; i < m_table->champs.size(); ++i) {
            const qsizetype place = m_places[qsizetype(i)];
            const QVariant valeur = place < 0 ? QVariant() : valeurs[place];
            fiche.append(m_table->champs[i].sorte == Sorte::Texte ? EnTexte(valeur) : EnNombre(valeur));
        }
        if (m_table->champs.front().sorte == Sorte::Cle && !PrendreNumero(fiche.front())) {
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

    void Terminer() {
        if (!m_lues.contains(&kCocktails)) {
            throw platform::jet::JetError(QStringLiteral(
                "Ce fichier n'est pas un livre de recettes : il n'a pas de table « Cocktails »."));
        }
        // A book of old has them all: one that is not found is lost in a damaged catalogue.
        for (const Table *table : kTables) {
            if (!m_lues.contains(table)) {
                throw platform::jet::JetError(u"Le fichier est endommagé : la table « " + table->nom +
                                              u" » est introuvable.");
            }
        }
        TerminerTable();
        m_insertion.commit();
    }

private:
    /// False for a number that is absent or given already.
    bool PrendreNumero(const QVariant &numero) {
        if (!numero.isValid() || m_numeros.contains(numero.toLongLong())) {
            return false;
        }
        m_numeros.insert(numero.toLongLong());
        return true;
    }

    /// Adds the rows without a number: the engine gives them the next ones, which are only known now.
    void TerminerTable() {
        for (const QVariantList &fiche : m_sansNumero) {
            m_insertion.row(fiche);
        }
        m_sansNumero.clear();
        m_numeros.clear();
    }

    platform::database::BulkInsert m_insertion;
    const ProgressionConversion &m_progression;
    const Table *m_table = nullptr;
    /// The place of each of our columns among those of the old table, or -1.
    QList<qsizetype> m_places;
    QSet<qlonglong> m_numeros;
    QList<QVariantList> m_sansNumero;
    QSet<const Table *> m_lues;
};

void Remplir(const QString &source, const QString &destination, const ProgressionConversion &progression) {
    QStringList tables;
    for (const Table *table : kTables) {
        tables.append(table->nom.toString());
    }
    platform::database::Database base = OuvrirLivre(destination);
    Transfert transfert(base, progression);
    platform::jet::readJet(DossierProgramme() + u"/lecteur-jet", source, tables, transfert);
    transfert.Terminer();
}

} // namespace

bool EstAncienLivre(const QString &chemin) {
    return platform::jet::isJetFile(chemin);
}

void ConvertirAncienLivre(const QString &source, const QString &destination,
                          const ProgressionConversion &progression) {
    CreerLivre(destination);
    try {
        if (const auto droits = platform::files::rightsOf(CheminBase())) {
            platform::files::setRights(destination, *droits & DroitsDuLivre());
        }
        Remplir(source, destination, progression);
    } catch (...) {
        QFile::remove(destination);
        QFile::remove(destination + QStringLiteral("-journal"));
        throw;
    }
}

} // namespace store
