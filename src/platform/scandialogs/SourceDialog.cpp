#include "SourceDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace platform::scandialogs {

using scanner::DeviceInfo;

namespace {

constexpr QSize kSize(460, 300);

QString caption(const DeviceInfo &device) {
    return QString(device.vendor + u' ' + device.model).trimmed() + u"  (" + device.name + u')';
}

} // namespace

SourceDialog::SourceDialog(scanner::Scanner &scanner, QString current, QWidget *parent)
    : QDialog(parent),
      m_scanner(scanner),
      m_current(std::move(current)),
      m_list(new QListWidget(this)),
      m_state(new QLabel(this)),
      m_refresh(new QPushButton(QStringLiteral("Actuali&ser"), this)),
      m_choose(new QPushButton(QStringLiteral("&Choisir"), this)),
      m_cancel(new QPushButton(QStringLiteral("Annuler"), this)) {
    setObjectName(QStringLiteral("SelectionSource"));
    setWindowTitle(QStringLiteral("Choix du scanner"));
    m_list->setObjectName(QStringLiteral("Sources"));
    m_state->setObjectName(QStringLiteral("Etat"));
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_refresh->setObjectName(QStringLiteral("Actualiser"));
    m_choose->setObjectName(QStringLiteral("Choisir"));
    m_cancel->setObjectName(QStringLiteral("Annuler"));
    m_choose->setDefault(true);
    arrange();

    connect(&m_search, &QFutureWatcherBase::finished, this, &SourceDialog::showDevices);
    connect(m_refresh, &QPushButton::clicked, this, &SourceDialog::refresh);
    connect(m_choose, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(m_list, &QListWidget::currentRowChanged, this,
            [this](int row) { m_choose->setEnabled(row >= 0); });
    refresh();
}

void SourceDialog::arrange() {
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_refresh);
    buttons->addStretch();
    buttons->addWidget(m_choose);
    buttons->addWidget(m_cancel);
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_list);
    column->addWidget(m_state);
    column->addLayout(buttons);
    resize(kSize);
}

void SourceDialog::refresh() {
    m_list->clear();
    m_devices.clear();
    m_choose->setEnabled(false);
    m_refresh->setEnabled(false);
    m_state->setText(QStringLiteral("Recherche des scanners…"));
    m_search.setFuture(m_scanner.devices());
}

void SourceDialog::showDevices() {
    m_refresh->setEnabled(true);
    try {
        m_devices = m_search.result();
    } catch (const scanner::ScannerError &error) {
        m_state->setText(error.sentence());
        return;
    }
    for (const DeviceInfo &device : m_devices) {
        m_list->addItem(caption(device));
        if (device.name == m_current || m_list->currentRow() < 0) {
            m_list->setCurrentRow(m_list->count() - 1);
        }
    }
    m_state->setText(m_devices.isEmpty()
                         ? QStringLiteral("Aucun scanner trouvé. Branchez-le, allumez-le, puis actualisez.")
                         : QStringLiteral("Choisissez le scanner à utiliser."));
    m_list->setFocus();
}

DeviceInfo SourceDialog::choice() const {
    return m_devices.value(m_list->currentRow());
}

} // namespace platform::scandialogs
