#include "PrintTarget.h"

#include "FileDialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <utility>

namespace platform::dialogs {

namespace {

constexpr int kResolution = 600; // dots to the inch

/// A title as the name of a file, without the signs that file systems forbid.
QString fileNameOf(const QString &title) {
    static const QRegularExpression forbidden(QStringLiteral(R"([\x00-\x1f/\\:*?"<>|]+)"));
    constexpr qsizetype kLongest = 60; // a name can have 255 bytes, a letter up to four
    const QString name = QString(title).replace(forbidden, QStringLiteral(" ")).simplified().left(kLongest);
    return (name.isEmpty() ? QStringLiteral("Recette") : name) + QStringLiteral(".pdf");
}

void draw(QPagedPaintDevice &device, const std::function<void(QPainter &)> &page,
          const std::string &failure) {
    device.setPageOrientation(QPageLayout::Portrait);
    QPainter painter;
    if (!painter.begin(&device)) {
        throw PrintError(failure);
    }
    page(painter);
    if (!painter.end()) {
        throw PrintError(failure);
    }
}

} // namespace

PrintTarget::PrintTarget() = default;
PrintTarget::~PrintTarget() = default;

QPrinter &PrintTarget::printer() {
    if (!m_printer) {
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        m_printer->setResolution(kResolution);
    }
    return *m_printer;
}

void PrintTarget::ShowPrinter(QWidget *parent) {
    QPrintDialog dialog(&printer(), parent);
    dialog.setWindowTitle(QStringLiteral("Configurer l'imprimante"));
    for (const auto option : {QPrintDialog::PrintPageRange, QPrintDialog::PrintCollateCopies}) {
        dialog.setOption(option, false);
    }
    // It only notes the choice: nothing is printed yet.
    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
    if (dialog.exec() == QDialog::Accepted) {
        m_file = printer().outputFormat() == QPrinter::PdfFormat ? printer().outputFileName() : QString();
    }
}

void PrintTarget::Print(QWidget *parent, const QString &title, const std::function<void(QPainter &)> &page) {
    if (printer().outputFormat() != QPrinter::PdfFormat) {
        const std::string failure = "L'impression a échoué.";
        printer().setDocName(title);
        draw(printer(), page, failure);
        if (printer().printerState() == QPrinter::Error) {
            throw PrintError(failure);
        }
        return;
    }
    QString path = std::exchange(m_file, {});
    if (path.isEmpty()) {
        path = askForFile(parent, title);
    }
    if (!path.isEmpty()) {
        writePdf(path, title, page);
        m_folder = QFileInfo(path).absolutePath();
    }
}

QString PrintTarget::askForFile(QWidget *parent, const QString &title) {
    if (m_folder.isEmpty()) {
        m_folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!QFileInfo(m_folder).isDir()) {
            m_folder = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
        }
    }
    return ShowSave(parent, QStringLiteral("Imprimer dans un fichier PDF"),
                    QStringLiteral("Fichiers PDF|*.pdf"), m_folder + QLatin1Char('/') + fileNameOf(title),
                    QStringLiteral("pdf"));
}

void PrintTarget::writePdf(const QString &path, const QString &title,
                           const std::function<void(QPainter &)> &page) {
    const std::string failure = "Impossible d'écrire le fichier " + path.toStdString() + ".";
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        throw PrintError(failure);
    }
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(printer().pageLayout());
        writer.setResolution(kResolution);
        writer.setTitle(title);
        writer.setCreator(QCoreApplication::applicationName());
        draw(writer, page, failure);
    }
    if (!file.commit()) {
        throw PrintError(failure);
    }
}

} // namespace platform::dialogs
