#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <chrono>
#include <stdexcept>

namespace platform::jet {

/// what() is the text for the user, in UTF-8.
class JetError : public std::runtime_error {
public:
    explicit JetError(const QString &text) : std::runtime_error(text.toUtf8().toStdString()) {}
};

/// Takes the tables of a Jet file as they are read. What it throws ends the reading and passes through readJet.
class JetSink {
public:
    virtual ~JetSink() = default;

    /// The rows that follow are of this table.
    virtual void table(const QString &name, const QStringList &columns) = 0;
    /// A value for each column: invalid for Null, else a qlonglong, a double or a QString, which may be empty.
    virtual void row(const QVariantList &values) = 0;
    /// Comes some times a second, also while there is nothing to read.
    /// @param total rows of all tables as the file announces them; 0 until that is known
    virtual void progress(qint64 rows, qint64 total) = 0;
};

/// True for a file that begins as those of Jet 3 and Jet 4 do, whole or not; never throws.
///
/// A database that is open must not be asked for: closing it here would drop the locks on it.
bool isJetFile(const QString &path);

inline constexpr std::chrono::minutes kJetTimeLimit{2};

/// Reads tables of a Jet 3 or Jet 4 file through a process of its own, so that a damaged file can do no harm here.
/// The file is not changed.
///
/// The rows of each table come in the order in which they are stored. Of the types of columns, truth values (0, -1),
/// whole numbers, dates and other reals, texts and memos are read; the others are Null.
///
/// @param program   path of the reading program, lecteur-jet
/// @param tables    the names of those to read, without regard to case; one that the file lacks is left out
/// @param timeLimit by the clock, for the whole
/// @throws JetError for a file that is damaged, none of that format or not readable, for a program that cannot be
///         started, breaks down, answers nonsense or takes too long; some rows may have gone into the sink by then
void readJet(const QString &program, const QString &file, const QStringList &tables, JetSink &sink,
             std::chrono::milliseconds timeLimit = kJetTimeLimit);

} // namespace platform::jet
