#pragma once

#include "Connection.h"
#include "RowCache.h"

#include <QStringList>

#include <future>
#include <map>
#include <optional>

namespace platform::database {

/// The rows of queries that will be asked of a file first, read on another thread while the program starts. They are
/// given out only for the very state of the file that they were read from.
class ReadAhead {
public:
    static ReadAhead &instance();

    void start(const QString &name, const Connection::Options &options, const QStringList &queries);

    /// Waits until the file is closed again. To be called before a file is opened: a reader would lock it.
    void finish();

    /// The rows of a query, once. Nothing if it was not read ahead, or if the file has been written to since.
    std::optional<RowCache> take(const Connection &connection, const QString &sql);

private:
    struct Rows {
        QString name;
        /// The first page of the file. Whoever writes to the file writes it anew with the first commit, with fresh random
        /// bytes (its initialisation vector) in an encrypted file, with a higher change counter in any.
        QByteArray firstPage;
        std::map<QString, RowCache> ofQueries;
    };

    static Rows read(const QString &name, const Connection::Options &options, const QStringList &queries);

    ReadAhead();

    Rows m_rows;
    /// Last, so that the thread has ended before the rest is destroyed.
    std::future<Rows> m_reading;
};

} // namespace platform::database
