#include "Livre.h"

#include "CollationFrancaise.h"
#include "CopieFichier.h"
#include "Programme.h"
#include "Schema.h"

#include "platform/database/CreateDatabase.h"
#include "platform/database/DatabaseError.h"

#include <QFile>

namespace store {

namespace {

QString connexion() {
    return QStringLiteral(";pwd =PoivreEtSel4");
}

QString schema() {
    QStringList instructions;
    for (const Table *table : kTables) {
        instructions.append(CreationDeTable(*table));
    }
    for (const Index &index : kIndex) {
        instructions.append(CreationDIndex(index));
    }
    return instructions.join(QStringLiteral(";\n"));
}

} // namespace

platform::database::Database OuvrirLivre() {
    try {
        return OuvrirLivre(CheminBase());
    } catch (const platform::database::DatabaseError &echec) {
        const QString copie = CheminAvantRestauration();
        if (!QFile::exists(copie)) {
            throw;
        }
        throw platform::database::DatabaseError(
            QString::fromUtf8(echec.what()) +
            QStringLiteral("\rLe livre d'avant la dernière restauration est dans ") + copie +
            QLatin1Char('.'));
    }
}

platform::database::Database OuvrirLivre(const QString &chemin) {
    return platform::database::OpenDatabase(chemin, true, false, connexion(), CollationFrancaise);
}

void LireDAvance(const QString &chemin, const QStringList &requetes) {
    platform::database::StartReading(chemin, connexion(), CollationFrancaise, requetes);
}

void CreerLivre(const QString &chemin) {
    platform::database::CreateDatabase(chemin, connexion(), schema());
}

} // namespace store
