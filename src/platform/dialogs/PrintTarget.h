#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <stdexcept>

class QPainter;
class QPrinter;
class QWidget;

namespace platform::dialogs {

/// A page that could not be printed or written; what() is a French text in UTF-8.
class PrintError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Where pages are printed: an installed printer, or PDF files. It starts as the default printer, or as PDF files where
/// no printer is installed, and keeps what the user chose as long as it lives.
class PrintTarget {
public:
    PrintTarget();
    ~PrintTarget();

    /// Lets the user choose among the installed printers and a PDF file, and set paper and copies; Cancel changes
    /// nothing. The title names the file proposed. The parent may be null or hidden.
    void ShowPrinter(QWidget *parent, const QString &title);

    /// Prints one upright page of 600 dots to the inch. The painter's device is the printable area. A PDF file
    /// chosen by ShowPrinter takes the first page; for each other one a file name is asked for, and Cancel prints
    /// nothing. The title goes into the metadata and names the file proposed. Throws PrintError.
    void Print(QWidget *parent, const QString &title, const std::function<void(QPainter &)> &page);

private:
    QPrinter &printer();
    QString proposedFile(const QString &title);
    void printPage(const QString &title, const std::function<void(QPainter &)> &page);
    void writePdf(const QString &path, const QString &title, const std::function<void(QPainter &)> &page);

    std::unique_ptr<QPrinter> m_printer; // made late: it looks for the installed ones
    QString m_file;                      // of the next page
    QString m_folder;                    // of the last file
};

} // namespace platform::dialogs
