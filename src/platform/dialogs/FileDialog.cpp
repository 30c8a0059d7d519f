#include "FileDialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

namespace platform::dialogs {

namespace {

QStringList nameFilters(const QString &filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        // The dialog shows all before the last bracket, so no blank stands there.
        filters.append(parts[i] + QLatin1Char('(') + patterns + QLatin1Char(')'));
    }
    return filters;
}

/// What stands behind the last dot of a name may be none: "livre 12.03.2026", "livre v. finale".
bool hasEnding(const QString &name) {
    constexpr int kLongest = 4;
    const QString ending = QFileInfo(name).suffix();
    return !ending.isEmpty() && ending.size() <= kLongest && ending.front().isLetter();
}

class SaveDialog : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    /// The toolkit takes whatever stands behind a dot for an ending. It reads the field again below, which selectFile()
    /// leaves alone while it has the focus.
    void accept() override {
        const QString chosen = selectedFiles().value(0);
        if (!QFileInfo(chosen).isDir() && !hasEnding(chosen)) {
            findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))
                ->setText(chosen + QLatin1Char('.') + defaultSuffix());
        }
        QFileDialog::accept();
    }
};

QString nearestFolder(const QString &wanted) {
    QFileInfo folder(wanted);
    while (!folder.isDir() && !folder.isRoot() && folder.isAbsolute()) {
        folder.setFile(folder.path());
    }
    return folder.isDir() ? folder.filePath() : QDir::homePath();
}

QString choose(QFileDialog &dialog, const QString &filter, const Start &start) {
    constexpr QSize kSize(720, 480); // pixels; on the smallest screen it leaves the window in sight
    dialog.resize(kSize);
    dialog.setViewMode(QFileDialog::List);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(nameFilters(filter));
    dialog.setDirectory(nearestFolder(start.folder));
    if (!start.name.isEmpty()) {
        dialog.selectFile(start.name);
    }
    // Asked afterwards, a dialog that has just read its folder answers with the file that it began with.
    QString chosen;
    QObject::connect(&dialog, &QFileDialog::fileSelected, [&chosen](const QString &file) { chosen = file; });
    return dialog.exec() == QDialog::Accepted ? chosen : QString();
}

} // namespace

Start Start::at(const QString &path) {
    const QFileInfo file(path);
    return {file.path(), file.fileName()};
}

QString ShowOpen(QWidget *parent, const QString &title, const QString &filter, const Start &start) {
    QFileDialog dialog(parent, title);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return choose(dialog, filter, start);
}

QString ShowSave(QWidget *parent, const QString &title, const QString &filter, const Start &start,
                 const QString &suffix) {
    SaveDialog dialog(parent, title);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    return choose(dialog, filter, start);
}

} // namespace platform::dialogs
