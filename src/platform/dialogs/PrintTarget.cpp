#include "PrintTarget.h"

#include "FileDialog.h"

#include <QChildEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTabWidget>
#include <algorithm>

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

void draw(QPagedPaintDevice &device, const PrintTarget::Pages &pages, const std::string &failure) {
    device.setPageOrientation(QPageLayout::Portrait);
    if (device.pageLayout().paintRect().isEmpty()) {
        throw PrintError("Les marges ne laissent aucune place sur le papier.");
    }
    QPainter painter;
    if (!painter.begin(&device)) {
        throw PrintError(failure);
    }
    pages(painter, device);
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

/// The print dialog, which only notes a choice: nothing is printed yet. It shows what has an effect on our pages alone. Its
/// parts are found by the names that the toolkit gives them.
class SetupDialog : public QPrintDialog {
public:
    SetupDialog(QPrinter &printer, const Destination &chosen, QWidget *parent)
        : QPrintDialog(&printer, parent),
          m_pdf(chosen.format == QPrinter::PdfFormat),
          m_destinations(part<QComboBox>(*this, "printers")),
          m_options(optionsButton(*findChild<QDialogButtonBox *>())) {
        setWindowTitle(QStringLiteral("Configurer l'imprimante"));
        setOption(PrintCollateCopies, false);
        findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setText(QStringLiteral("OK"));
        connect(&m_destinations, &QComboBox::currentIndexChanged, this, [this] { adapt(); });
    }

protected:
    /// Just before it is shown, the dialog brings back what was hidden, and after a choice of PDF files starts from a
    /// printer.
    void showEvent(QShowEvent *event) override {
        QPrintDialog::showEvent(event);
        if (m_pdf) {
            m_destinations.setCurrentIndex(m_destinations.count() - 1);
        }
        adapt();
    }

    /// The dialog of the properties is made again after each choice.
    void childEvent(QChildEvent *event) override {
        if (event->added()) {
            event->child()->installEventFilter(this);
        }
        QPrintDialog::childEvent(event);
    }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::Show && watched->findChild<QRadioButton *>(kLandscape) != nullptr) {
            adaptProperties(*watched);
        }
        return QPrintDialog::eventFilter(watched, event);
    }

private:
    static constexpr QLatin1String kLandscape{"landscape"};

    template <class Part>
    static Part &part(const QObject &dialog, const char *name) {
        return *dialog.findChild<Part *>(QLatin1String(name));
    }

    static QPushButton &optionsButton(const QDialogButtonBox &box) {
        const auto buttons = box.findChildren<QPushButton *>();
        const auto opens = [&box](QPushButton *button) {
            return box.buttonRole(button) == QDialogButtonBox::ResetRole;
        };
        return **std::find_if(buttons.begin(), buttons.end(), opens);
    }

    bool toFile() const { return m_destinations.currentIndex() == m_destinations.count() - 1; }

    void adapt() {
        // A file is named when it is printed; a name that is disabled is not looked at.
        for (const char *name : {"filename", "fileBrowser", "lOutput", "gbPrintRange"}) {
            part<QWidget>(*this, name).hide();
        }
        part<QWidget>(*this, "filename").setEnabled(false);
        // Copies, sides and order of the pages are a printer's.
        if (toFile() && part<QWidget>(*this, "tabs").isVisible()) {
            m_options.click();
        }
        m_options.setVisible(!toFile());
    }

    void adaptProperties(QObject &properties) const {
        auto &landscape = part<QRadioButton>(properties, "landscape");
        if (landscape.isEnabled()) {
            landscape.setEnabled(false);
            auto *reason = new QLabel(QStringLiteral("Les pages s'impriment toujours debout."));
            reason->setWordWrap(true);
            landscape.parentWidget()->layout()->addWidget(reason);
        }
        if (toFile()) {
            part<QWidget>(properties, "pagesPerSheetButtonGroup").hide();
            auto &tabs = part<QTabWidget>(properties, "tabs");
            for (int i = 1; i < tabs.count(); ++i) {
                tabs.setTabVisible(i, false);
            }
        }
    }

    bool m_pdf;
    QComboBox &m_destinations;
    QPushButton &m_options; // opens the lower half
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

void PrintTarget::ShowPrinter(QWidget *parent) {
    const Destination before(printer());
    if (SetupDialog(printer(), before, parent).exec() != QDialog::Accepted) {
        before.restore(printer());
    }
}

QString PrintTarget::Print(QWidget *parent, const QString &title, const Pages &pages) {
    if (printer().outputFormat() != QPrinter::PdfFormat) {
        printPages(title, pages);
        return {};
    }
    QString path =
        ShowSave(parent, QStringLiteral("Imprimer dans un fichier PDF"), QStringLiteral("Fichiers PDF|*.pdf"),
                 {folder(), fileNameOf(title)}, QStringLiteral("pdf"));
    if (!path.isEmpty()) {
        writePdf(path, title, pages);
        m_folder = QFileInfo(path).absolutePath();
    }
    return path;
}

QString PrintTarget::folder() const {
    return m_folder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                              : m_folder;
}

void PrintTarget::printPages(const QString &title, const Pages &pages) {
    const QString name = printer().printerName();
    // What is printed on a printer that is gone is lost without a word.
    if (QPrinterInfo::printerInfo(name).isNull()) {
        throw PrintError("L'imprimante " + name.toStdString() + " n'est pas disponible.");
    }
    const std::string failure = "L'impression a échoué.";
    printer().setDocName(title);
    draw(printer(), pages, failure);
    if (printer().printerState() == QPrinter::Error) {
        throw PrintError(failure);
    }
}

void PrintTarget::writePdf(const QString &path, const QString &title, const Pages &pages) {
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
        draw(writer, pages, failure);
    }
    if (!file.commit()) {
        throw PrintError(failure);
    }
}

} // namespace platform::dialogs
