#pragma once

#include "FileError.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace platform::files {

/// Rights of a file, as those of chmod.
using Rights = unsigned;

/// None for a file that does not exist.
std::optional<Rights> rightsOf(const QString &path);

/// @throws FileError
void setRights(const QString &path, Rights rights);

/// Puts a file under another name, in the place of one that has it, and on disk there.
/// @throws FileError; both files are what they were then
void replaceFile(const QString &path, const QString &replaced);

/// Removes what a killed WholeFile has left in a folder.
void removeDrafts(const QString &folder, const QString &prefix);

/// A file that appears under its name complete and on disk, or not at all. Until then it is a draft in the same folder,
/// which goes at the end of the scope; that of a killed program goes with the next one.
class WholeFile {
public:
    /// @param prefix of the draft's short name; no other file of the folder may begin with it
    /// @throws FileError
    WholeFile(const QString &folder, const QString &prefix);
    WholeFile(const WholeFile &) = delete;
    WholeFile &operator=(const WholeFile &) = delete;
    ~WholeFile();

    /// At first what the user's mask gives.
    Rights rights() const;
    void setRights(Rights rights);

    void write(QByteArrayView bytes);

    /// @param path the name in that folder; a file that has it is replaced
    void commit(const QString &path);

private:
    [[noreturn]] void fail() const;

    QString m_draft;
    int m_file;
};

} // namespace platform::files
