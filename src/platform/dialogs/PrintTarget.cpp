#include "PrintTarget.h"

#include "FileDialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
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

/// Where a printer prints. The print dialog changes that at each choice in its list, not when it is accepted.
struct Destination {
    QPrinter::OutputFormat format;
    QString name;
    QPageLayout layout;

    explicit Destination(const QPrinter &printer)
        : format(printer.outputFormat()), name(printer.printerName()), layout(printer.pageLayout()) {}

    void restore(QPrinter &printer) const {
        if (format == QPrinter::PdfFormat) {
            printer.setOutputFormat(format);
        } else {
            printer.setPrinterName(name);
        }
        printer.setPageLayout(layout);
    }
};

/// The print dialog, which only notes a choice: nothing is printed yet. Its parts are found by the names that the
/// toolkit gives them.
class SetupDialog : public QPrintDialog {
public:
    SetupDialog(QPrinter &printer, const Destination &chosen, const QString &file, QWidget *parent)
        : QPrintDialog(&printer, parent), m_pdf(chosen.format == QPrinter::PdfFormat) {
        setWindowTitle(QStringLiteral("Configurer l'imprimante"));
        setOption(PrintCollateCopies, false);
        findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
        findChild<QLineEdit *>(QStringLiteral("filename"))->setText(file);
    }

protected:
    /// Just before it is shown, the dialog offers to choose among the pages, of which there is one, and after a choice of
    /// PDF files starts from a printer.
    void showEvent(QShowEvent *event) override {
        QPrintDialog::showEvent(event);
        findChild<QGroupBox *>(QStringLiteral("gbPrintRange"))->hide();
        if (m_pdf) {
            auto *destinations = findChild<QComboBox *>(QStringLiteral("printers"));
            destinations->setCurrentIndex(destinations->count() - 1);
        }
    }

private:
    bool m_pdf;
};

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

void PrintTarget::ShowPrinter(QWidget *parent, const QString &title) {
    const Destination before(printer());
    SetupDialog dialog(printer(), before, m_file.isEmpty() ? proposedFile(title) : m_file, parent);
    if (dialog.exec() == QDialog::Accepted) {
        m_file = printer().outputFormat() == QPrinter::PdfFormat ? printer().outputFileName() : QString();
    } else {
        before.restore(printer());
    }
}

void PrintTarget::Print(QWidget *parent, const QString &title, const std::function<void(QPainter &)> &page) {
    if (printer().outputFormat() != QPrinter::PdfFormat) {
        printPage(title, page);
        return;
    }
    QString path = std::exchange(m_file, {});
    if (path.isEmpty()) {
        path = ShowSave(parent, QStringLiteral("Imprimer dans un fichier PDF"),
                        QStringLiteral("Fichiers PDF|*.pdf"), proposedFile(title), QStringLiteral("pdf"));
    }
    if (!path.isEmpty()) {
        writePdf(path, title, page);
        m_folder = QFileInfo(path).absolutePath();
    }
}

QString PrintTarget::proposedFile(const QString &title) {
    if (m_folder.isEmpty()) {
        m_folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!QFileInfo(m_folder).isDir()) {
            m_folder = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
        }
    }
    return m_folder + QLatin1Char('/') + fileNameOf(title);
}

void PrintTarget::printPage(const QString &title, const std::function<void(QPainter &)> &page) {
    const QString name = printer().printerName();
    // What is printed on a printer that is gone is lost without a word.
    if (QPrinterInfo::printerInfo(name).isNull()) {
        throw PrintError("L'imprimante " + name.toStdString() + " n'est pas disponible.");
    }
    const std::string failure = "L'impression a échoué.";
    printer().setDocName(title);
    draw(printer(), page, failure);
    if (printer().printerState() == QPrinter::Error) {
        throw PrintError(failure);
    }
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
