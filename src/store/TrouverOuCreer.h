#pragma once

#include "Schema.h"

#include "platform/database/Database.h"

#include <optional>
#include <stdexcept>

namespace store {

/// Runs statements one after the other.
class Etapes {
public:
    /// From here on a failing statement is passed over, and those after it still run. A programming error is never passed over.
    void Tolerer() { m_tolerantes = true; }

    template <class Instruction>
    void Executer(Instruction instruction) const {
        try {
            instruction();
        } catch (const std::runtime_error &) {
            if (!m_tolerantes) {
                throw;
            }
        }
    }

private:
    bool m_tolerantes = false;
};

/// The number that the next row of a table gets.
qint64 NumeroSuivant(platform::database::Database &livre, const Table &table);

/// What a new row holds in the columns behind its text.
enum class Surplus { Nuls, Blancs };

/// Appends a row to a table of texts, under the next number. Gives the number, also of a row whose writing failed and was
/// passed over.
std::optional<qint64> AjouterTexte(platform::database::Database &livre, const Table &table,
                                   const QString &texte, Surplus surplus = Surplus::Nuls,
                                   const Etapes &etapes = {});

struct NumeroDeTexte {
    std::optional<qint64> numero;
    bool nouveau = false;
};

/// The number of a text in a table of texts, which gets a row for it if there is none. No number for the empty text.
/// @param aEcrire what a new row holds: the text itself, or the form that it is stored in
NumeroDeTexte TrouverOuCreer(platform::database::Database &livre, const Table &table, const QString &texte,
                             const QString &aEcrire, const Etapes &etapes = {});

} // namespace store
