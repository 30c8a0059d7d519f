#include "Livre.h"

#include "CollationFrancaise.h"
#include "CopieFichier.h"
#include "MiseAJour.h"
#include "Programme.h"
#include "Schema.h"

#include "platform/database/CreateDatabase.h"
#include "platform/database/DatabaseError.h"

#include <QFile>

namespace store {

namespace {

QString Connexion() {
    return QStringLiteral(";pwd =PoivreEtSel4");
}

QString SchemaEntier() {
    QStringList instructions;
    for (const Table *table : kTables) {
        instructions.append(CreationDeTable(*table));
    }
    for (const Index &index : kIndex) {
        instructions.append(CreationDIndex(index));
    }
    instructions.append(QStringLiteral("PRAGMA user_version = %1").arg(kVersionDuLivre));
    return instructions.join(QStringLiteral(";\n"));
}

} // namespace

platform::database::Database OuvrirLivre() {
    try {
        return OuvrirLivre(CheminBase());
    } catch (const platform::database::DatabaseError &echec) {
        const QString copie = MentionDeLaCopie();
        if (copie.isEmpty() || echec.isInUse()) {
            throw;
        }
        throw platform::database::DatabaseError(QString::fromUtf8(echec.what()) + copie);
    }
}

platform::database::Database OuvrirLivre(const QString &chemin) {
    auto livre = platform::database::OpenDatabase(chemin, true, false, Connexion(), kCollationFrancaise);
    if (livre.UserVersion() != kVersionDuLivre) {
        MettreAJour(livre);
    }
    return livre;
}

bool EstUnLivre(const QString &chemin) {
    try {
        auto livre = platform::database::OpenDatabase(chemin, true, true, Connexion(), kCollationFrancaise);
        return livre.UserVersion() <= kVersionDuLivre &&
               livre.OpenRecordset(QStringLiteral("SELECT Numero From Cocktails")).RecordCount() >= 0 &&
               livre.OpenRecordset(QStringLiteral("PRAGMA quick_check")).Fields(0).Text() == u"ok";
    } catch (const platform::database::DatabaseError &) {
        return false;
    }
}

QString MentionDeLaCopie() {
    const QString copie = CheminAvantRestauration();
    return QFile::exists(copie)
               ? QStringLiteral("\rLe livre d'avant la dernière restauration est dans ") + copie + u'.'
               : QString();
}

void PreparerCle() {
    platform::database::PrepareKey(CheminBase(), Connexion());
}

void CreerLivre(const QString &chemin) {
    platform::database::CreateDatabase(chemin, Connexion(), SchemaEntier());
}

} // namespace store
