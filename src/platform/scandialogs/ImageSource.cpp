#include "ImageSource.h"

#include "AcquisitionDialog.h"
#include "SourceDialog.h"

#include "platform/scanner/Scanner.h"

#include <QClipboard>
#include <QGuiApplication>

namespace platform::scandialogs {

ImageSource::ImageSource() = default;
ImageSource::~ImageSource() = default;

scanner::Scanner &ImageSource::scannerInUse() {
    if (!m_scanner) {
        m_scanner = std::make_unique<scanner::Scanner>();
    }
    return *m_scanner;
}

int ImageSource::SelectImageSource(QWidget *parent) {
    SourceDialog dialog(scannerInUse(), m_choice.name, parent);
    if (dialog.exec() != QDialog::Accepted) {
        return 0;
    }
    m_choice = dialog.choice();
    return 1;
}

int ImageSource::AcquireToClipboard(QWidget *parent) {
    if (m_choice.name.isEmpty()) {
        return 0;
    }
    AcquisitionDialog dialog(scannerInUse(), m_choice, parent);
    if (dialog.exec() != QDialog::Accepted) {
        return 0;
    }
    QGuiApplication::clipboard()->setImage(dialog.picture());
    return 1;
}

} // namespace platform::scandialogs
