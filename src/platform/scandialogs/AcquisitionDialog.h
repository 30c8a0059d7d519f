#pragma once

#include "platform/scanner/Scanner.h"

#include <QDialog>
#include <QFutureWatcher>

class QComboBox;
class QFormLayout;
class QLabel;
class QProgressBar;
class QPushButton;

namespace platform::scandialogs {

class PreviewArea;

/// The usual options of one device, its preview, and the scan. It is accepted with a picture only; a failure is
/// reported in the dialog and leaves it open. Nothing here waits for the device.
class AcquisitionDialog : public QDialog {
    Q_OBJECT

public:
    AcquisitionDialog(scanner::Scanner &scanner, const scanner::DeviceInfo &device, QWidget *parent);
    ~AcquisitionDialog() override;

    /// The picture scanned when the dialog was accepted.
    const QImage &picture() const { return m_picture; }

    /// Stops a scan under way; without one, closes the dialog.
    void reject() override;

private:
    void nameControls();
    void arrange();
    void addChoice(QFormLayout *form, const QString &caption, QComboBox *box);
    void askOptions();
    void showOptions();
    void startScan(bool preview);
    void endScan();
    void setBusy(bool busy, const QString &state);
    scanner::ScanSettings settings(bool preview) const;

    scanner::Scanner &m_scanner;
    QString m_device;
    scanner::ScanOptions m_options;
    QFutureWatcher<scanner::ScanOptions> m_asking;
    QFutureWatcher<QImage> m_scan;
    bool m_previewing = false;
    QImage m_picture;
    QComboBox *m_source;
    QComboBox *m_mode;
    QComboBox *m_resolution;
    QLabel *m_hint;
    PreviewArea *m_area;
    QLabel *m_state;
    QProgressBar *m_progress;
    QPushButton *m_previewButton;
    QPushButton *m_scanButton;
    QPushButton *m_cancelButton;
};

} // namespace platform::scandialogs
