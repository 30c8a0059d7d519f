#include "BareBook.h"

#include "store/CollationFrancaise.h"

#include <QFile>

#include <openssl/evp.h>
#include <sqlite3.h>

#include <stdexcept>
#include <string_view>

namespace bench {

namespace {

constexpr std::string_view kPassphrase = "PoivreEtSel4";
// Of the SQLCipher 3 file format.
constexpr int kSaltSize = 16;
constexpr int kKeySize = 32;
constexpr int kRounds = 64000;

QByteArray rawKey(const QByteArray &salt) {
    QByteArray key(kKeySize, Qt::Uninitialized);
    PKCS5_PBKDF2_HMAC_SHA1(kPassphrase.data(), static_cast<int>(kPassphrase.size()),
                           reinterpret_cast<const unsigned char *>(salt.constData()), kSaltSize, kRounds,
                           kKeySize, reinterpret_cast<unsigned char *>(key.data()));
    return "x'" + key.toHex() + salt.toHex() + "'";
}

int compareFrench(void * /*unused*/, int leftSize, const void *left, int rightSize, const void *right) {
    return store::ComparerFrancais({static_cast<const char *>(left), static_cast<std::size_t>(leftSize)},
                                   {static_cast<const char *>(right), static_cast<std::size_t>(rightSize)});
}

void check(sqlite3 *connection, int result) {
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(connection));
    }
}

} // namespace

void CloseConnection::operator()(sqlite3 *connection) const {
    sqlite3_close(connection);
}

void FinalizeStatement::operator()(sqlite3_stmt *statement) const {
    sqlite3_finalize(statement);
}

BareBook::BareBook(const QString &path) : m_path(path.toUtf8()) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error(file.errorString().toStdString());
    }
    m_rawKey = rawKey(file.read(kSaltSize));
}

Connection BareBook::open() const {
    sqlite3 *opened = nullptr;
    const int result =
        sqlite3_open_v2(m_path.constData(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    Connection connection(opened);
    check(opened, result);
    check(opened, sqlite3_key(opened, m_rawKey.constData(), static_cast<int>(m_rawKey.size())));
    execute(opened, "PRAGMA cipher_page_size = 4096");
    return connection;
}

Statement prepare(sqlite3 *connection, const char *sql) {
    sqlite3_stmt *statement = nullptr;
    check(connection, sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr));
    return Statement(statement);
}

bool step(const Statement &statement) {
    const int result = sqlite3_step(statement.get());
    check(sqlite3_db_handle(statement.get()), result);
    return result == SQLITE_ROW;
}

void execute(sqlite3 *connection, const char *sql) {
    check(connection, sqlite3_exec(connection, sql, nullptr, nullptr, nullptr));
}

void useFrenchOrder(sqlite3 *connection) {
    check(connection, sqlite3_create_collation(connection, "NOCASE", SQLITE_UTF8, nullptr, compareFrench));
}

} // namespace bench
