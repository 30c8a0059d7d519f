#include "ReadAhead.h"

#include "Cursor.h"
#include "KeyDerivation.h"

#include <openssl/crypto.h>
#include <sqlite3.h>

#include <exception>
#include <system_error>

namespace platform::database {

namespace {

constexpr int kPageSize = 4096;

} // namespace

ReadAhead::ReadAhead() {
    // Made before, so that they are there until the thread has ended.
    KeyCache::instance();
    OPENSSL_init_crypto(0, nullptr);
}

ReadAhead &ReadAhead::instance() {
    static ReadAhead readAhead;
    return readAhead;
}

void ReadAhead::start(const QString &name, const Connection::Options &options, const QStringList &queries) {
    finish();
    const auto readOrGiveUp = [name, options, queries] {
        try {
            return read(name, options, queries);
        } catch (const std::exception &) {
            return Rows{}; // whatever failed fails again, and is told, where the rows are needed
        }
    };
    try {
        m_reading = std::async(std::launch::async, readOrGiveUp);
    } catch (const std::system_error &) { // there are no threads left: nothing is read ahead
    }
}

ReadAhead::Rows ReadAhead::read(const QString &name, const Connection::Options &options,
                                const QStringList &queries) {
    const auto connection = std::make_shared<Connection>(name, options);
    // The lock keeps writers out, unless this process opens and closes the file by other means meanwhile. The page is
    // read first: a change behind it shows.
    runScript(connection->handle(), "BEGIN; PRAGMA schema_version");
    Rows rows{name, readStart(connection->handle(), kPageSize), {}};
    for (const QString &sql : queries) {
        rows.ofQueries.emplace(sql, Cursor(connection, sql).takeRows());
    }
    return rows;
}

void ReadAhead::finish() {
    if (m_reading.valid()) {
        m_rows = m_reading.get();
    }
}

std::optional<RowCache> ReadAhead::take(const Connection &connection, const QString &sql) {
    // In a transaction the page tells nothing of what the connection itself has changed.
    if (sqlite3_get_autocommit(connection.handle()) == 0 || m_rows.ofQueries.empty() ||
        connection.name() != m_rows.name) {
        return {};
    }
    if (readStart(connection.handle(), kPageSize) != m_rows.firstPage) {
        m_rows = {};
        return {};
    }
    auto rows = m_rows.ofQueries.extract(sql);
    return rows.empty() ? std::nullopt : std::optional(std::move(rows.mapped()));
}

} // namespace platform::database
