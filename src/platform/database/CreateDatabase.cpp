#include "CreateDatabase.h"

#include "Connection.h"
#include "DatabaseError.h"
#include "KeyDerivation.h"

#include <QFile>

#include <openssl/rand.h>
#include <sqlite3.h>

namespace platform::database {

namespace {

void fillFile(const QString &name, const QByteArray &passphrase, const QString &schema) {
    const SqliteHandle db = openFile(name, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (!passphrase.isEmpty()) {
        QByteArray salt(kSaltSize, Qt::Uninitialized);
        if (RAND_bytes(reinterpret_cast<uchar *>(salt.data()), kSaltSize) != 1) {
            throw DatabaseError("Aucun nombre aléatoire n'est disponible.");
        }
        useKey(db.get(), passphrase, salt);
    }
    runScript(db.get(), "BEGIN EXCLUSIVE");
    runScript(db.get(), schema.toUtf8().constData());
    runScript(db.get(), "COMMIT");
}

} // namespace

void CreateDatabase(const QString &name, const QString &connect, const QString &schema) {
    if (QFile::exists(name)) {
        throw DatabaseError(u"Le fichier existe déjà : " + name);
    }
    try {
        fillFile(name, passphraseOf(connect), schema);
    } catch (...) {
        QFile::remove(name);
        QFile::remove(name + QStringLiteral("-journal"));
        throw;
    }
}

} // namespace platform::database
