#pragma once

#include "platform/scanner/ScannerTypes.h"

#include <memory>

class QWidget;

namespace platform::scanner {
class Scanner;
}

namespace platform::scandialogs {

/// The scanner that the user works with. The choice lasts as long as this object, so one serves the whole run of
/// the program; SANE is loaded by the first call.
class ImageSource {
public:
    ImageSource();
    ~ImageSource();

    ImageSource(const ImageSource &) = delete;
    ImageSource &operator=(const ImageSource &) = delete;

    /// Lets the user choose among the devices, in a modal dialog. 1 when one was chosen, else 0.
    int SelectImageSource(QWidget *parent);

    /// Lets the user set up the chosen device and scan, in a modal dialog, and leaves the picture on the
    /// clipboard. 0 when there is none: nothing chosen, cancelled, or failed, which the dialog has reported.
    int AcquireToClipboard(QWidget *parent);

private:
    scanner::Scanner &scannerInUse();

    std::unique_ptr<scanner::Scanner> m_scanner;
    scanner::DeviceInfo m_choice;
};

} // namespace platform::scandialogs
