#include "Connection.h"

#include "DatabaseError.h"
#include "KeyDerivation.h"

#include <sqlite3.h>

namespace platform::database {

namespace {

int compareTexts(void *compare, int leftSize, const void *left, int rightSize, const void *right) {
    const auto *collation = static_cast<const Collation *>(compare);
    return collation->compare({static_cast<const char *>(left), size_t(leftSize)},
                              {static_cast<const char *>(right), size_t(rightSize)});
}

} // namespace

DatabaseError engineError(sqlite3 *db) {
    const int code = sqlite3_extended_errcode(db);
    const int cause = code & 0xff;
    const char *file = sqlite3_db_filename(db, "main");
    return DatabaseError(
        EngineFailure{code, sqlite3_errmsg(db), QString::fromUtf8(file),
                      cause == SQLITE_IOERR || cause == SQLITE_CANTOPEN ? sqlite3_system_errno(db) : 0});
}

void SqliteCloser::operator()(sqlite3 *db) const {
    sqlite3_close(db);
}

QByteArray passphraseOf(const QString &connect) {
    for (const QString &part : connect.split(u';')) {
        const qsizetype equals = part.indexOf(u'=');
        if (QStringView(part).first(qMax(equals, 0)).trimmed().compare(u"pwd", Qt::CaseInsensitive) == 0) {
            return part.mid(equals + 1).toUtf8();
        }
    }
    return {};
}

SqliteHandle openFile(const QString &name, int flags) {
    sqlite3 *db = nullptr;
    const int result = sqlite3_open_v2(name.toUtf8().constData(), &db, flags | SQLITE_OPEN_NOMUTEX, nullptr);
    SqliteHandle handle(db);
    if (result != SQLITE_OK) {
        throw DatabaseError(
            EngineFailure{result, sqlite3_errstr(result), name, db ? sqlite3_system_errno(db) : 0});
    }
    return handle;
}

namespace {

/// The first bytes of an open file. @throws DatabaseError when it is shorter
QByteArray saltOf(sqlite3 *db, const QString &name) {
    // Through the engine's own handle: opening and closing the file aside would drop the locks that another
    // connection of this process holds.
    sqlite3_file *file = nullptr;
    sqlite3_file_control(db, "main", SQLITE_FCNTL_FILE_POINTER, static_cast<void *>(&file));
    if (!file || !file->pMethods) {
        throw DatabaseError(EngineFailure{SQLITE_CANTOPEN, sqlite3_errstr(SQLITE_CANTOPEN), name});
    }
    QByteArray salt(kSaltSize, Qt::Uninitialized);
    if (const int result = file->pMethods->xRead(file, salt.data(), kSaltSize, 0); result != SQLITE_OK) {
        const int code = result == SQLITE_IOERR_SHORT_READ ? SQLITE_NOTADB : result;
        throw DatabaseError(EngineFailure{code, sqlite3_errstr(code), name});
    }
    return salt;
}

} // namespace

void useKey(sqlite3 *db, const QByteArray &passphrase, const QByteArray &salt) {
    const QByteArray key = "x'" + KeyCache::instance().key(passphrase, salt).toHex() + salt.toHex() + "'";
    sqlite3_key(db, key.constData(), int(key.size()));
    runScript(db, "PRAGMA cipher_page_size = 4096");
}

void runScript(sqlite3 *db, const char *sql) {
    if (sqlite3_exec(db, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw engineError(db);
    }
}

Connection::Connection(const QString &name, const Options &options)
    : m_db(openFile(name, options.readOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE)),
      m_collation(options.collation),
      m_journalled(options.exclusive && !options.readOnly) {
    sqlite3 *db = m_db.get();
    if (const QByteArray salt = saltOf(db, name); !options.passphrase.isEmpty()) {
        useKey(db, options.passphrase, salt);
    }
    sqlite3_create_collation(db, "NOCASE", SQLITE_UTF8, &m_collation, compareTexts);
    if (options.exclusive && options.readOnly) {
        // A file that cannot be written cannot be locked for writing either: the lasting lock of a reader keeps
        // writers out.
        runScript(db, "PRAGMA locking_mode = EXCLUSIVE; PRAGMA schema_version");
    } else if (m_journalled) {
        // The journal is cut short by each commit and goes at the close, since a lasting lock keeps it.
        runScript(db, "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = TRUNCATE;"
                      "BEGIN EXCLUSIVE; COMMIT");
    } else {
        runScript(db, "PRAGMA schema_version");
    }
}

Connection::~Connection() {
    close();
}

void Connection::close() {
    if (!m_db) {
        return;
    }
    while (sqlite3_stmt *statement = sqlite3_next_stmt(m_db.get(), nullptr)) {
        sqlite3_finalize(statement);
    }
    if (m_journalled) {
        // Where a change has failed half-way and could not be taken back, only the journal can heal the file. A
        // transaction plays it back first; while that fails, what stands behind it does not run, and the journal stays
        // for the next open.
        if (sqlite3_get_autocommit(m_db.get()) == 0) {
            sqlite3_exec(m_db.get(), "ROLLBACK", nullptr, nullptr, nullptr);
        }
        sqlite3_exec(m_db.get(),
                     "BEGIN EXCLUSIVE; COMMIT; PRAGMA locking_mode = NORMAL; PRAGMA journal_mode = DELETE",
                     nullptr, nullptr, nullptr);
    }
    m_db.reset();
}

void Connection::failClosed() {
    throw DatabaseError("La base de données est fermée.");
}

void Connection::fail() const {
    throw engineError(handle());
}

} // namespace platform::database
