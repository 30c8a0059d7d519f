#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <stdexcept>

class QPagedPaintDevice;
class QPainter;
class QPrinter;
class QWidget;

namespace platform::dialogs {

/// Pages that could not be printed or written; what() is a French text in UTF-8.
class PrintError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Where pages are printed: an installed printer, or PDF files. It starts as the default printer, or as PDF files where
/// no printer is installed, and keeps what the user chose as long as it lives.
class PrintTarget {
public:
    /// Draws pages on the printable area of a paper, each after the first one behind a newPage() of the device.
    using Pages = std::function<void(QPainter &, QPagedPaintDevice &)>;

    PrintTarget();
    ~PrintTarget();

    /// Lets the user choose among the installed printers and PDF files, and set what has an effect there; Cancel changes
    /// nothing. The parent may be null or hidden.
    void ShowPrinter(QWidget *parent);

    /// Prints upright pages of 600 dots to the inch. For a PDF file the name is asked for each time, and Cancel prints
    /// nothing. The title goes into the metadata and names the file proposed. Gives the path of the file written; empty
    /// where there is none. Throws PrintError.
    QString Print(QWidget *parent, const QString &title, const Pages &pages);

private:
    QPrinter &printer();
    /// Where the next file is proposed.
    QString folder() const;
    void printPages(const QString &title, const Pages &pages);
    void writePdf(const QString &path, const QString &title, const Pages &pages);

    std::unique_ptr<QPrinter> m_printer; // made late: it looks for the installed ones
    QString m_folder;                    // of the last file
};

} // namespace platform::dialogs
