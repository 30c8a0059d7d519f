#pragma once

#include "platform/scanner/Scanner.h"

#include <QDialog>
#include <QFutureWatcher>

class QLabel;
class QListWidget;
class QPushButton;

namespace platform::scandialogs {

/// The devices, looked for when the dialog opens and whenever the user wants.
class SourceDialog : public QDialog {
    Q_OBJECT

public:
    /// @param current SANE's name of the device to be marked, if it is there
    SourceDialog(scanner::Scanner &scanner, QString current, QWidget *parent);

    /// The device marked when the dialog was accepted.
    scanner::DeviceInfo choice() const;

private:
    void arrange();
    void refresh();
    void showDevices();

    scanner::Scanner &m_scanner;
    QString m_current;
    QList<scanner::DeviceInfo> m_devices;
    QFutureWatcher<QList<scanner::DeviceInfo>> m_search;
    QListWidget *m_list;
    QLabel *m_state;
    QPushButton *m_refresh;
    QPushButton *m_choose;
    QPushButton *m_cancel;
};

} // namespace platform::scandialogs
