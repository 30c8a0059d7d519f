#include "ReadAhead.h"

#include "Cursor.h"
#include "KeyDerivation.h"

#include <exception>
#include <system_error>

namespace platform::database {

namespace {

constexpr int kPageSize = 4096;

} // namespace

ReadAhead::ReadAhead() {
    KeyCache::instance(); // made before, so that it is there until the thread has ended
}

ReadAhead &ReadAhead::instance() {
    static ReadAhead readAhead;
    return readAhead;
}

void ReadAhead::start(const QString &name, const Connection::Options &options,
                      std::function<QStringList()> queries) {
    finish();
    const auto readOrGiveUp = [name, options, queries = std::move(queries)] {
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
                                const std::function<QStringList()> &queries) {
    const QStringList asked = queries();
    const auto connection = std::make_shared<Connection>(name, options);
    // From here to the end nobody writes: the page belongs to the rows.
    runScript(connection->handle(), "BEGIN; PRAGMA schema_version");
    Rows rows{name, readStart(connection->handle(), kPageSize), {}};
    for (const QString &sql : asked) {
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
    if (m_rows.ofQueries.empty() || connection.name() != m_rows.name) {
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
