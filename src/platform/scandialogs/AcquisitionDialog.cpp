#include "AcquisitionDialog.h"

#include "PreviewArea.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace platform::scandialogs {

using scanner::ScannerError;
using scanner::ScanOptions;
using scanner::ScanSettings;

namespace {

constexpr double kUsualResolution = 300; // dots per inch: sharp in print, and quick

struct Translation {
    const char *name;
    const char *french;
};

// The names that drivers commonly use for the same thing.
constexpr std::array kFrench{
    Translation{"Color", "Couleur"},
    Translation{"Colour", "Couleur"},
    Translation{"24bit Color", "Couleur"},
    Translation{"Gray", "Niveaux de gris"},
    Translation{"Grey", "Niveaux de gris"},
    Translation{"Grayscale", "Niveaux de gris"},
    Translation{"True Gray", "Niveaux de gris"},
    Translation{"Lineart", "Noir et blanc"},
    Translation{"Binary", "Noir et blanc"},
    Translation{"Black & White", "Noir et blanc"},
    Translation{"Halftone", "Tramé"},
    Translation{"Flatbed", "Vitre"},
    Translation{"ADF", "Chargeur automatique"},
    Translation{"Automatic Document Feeder", "Chargeur automatique"},
    Translation{"ADF Front", "Chargeur, recto"},
    Translation{"ADF Back", "Chargeur, verso"},
    Translation{"ADF Duplex", "Chargeur, recto verso"},
    Translation{"Transparency Adapter", "Adaptateur pour transparents"},
};

QString inFrench(const QString &name) {
    const auto found = std::find_if(kFrench.begin(), kFrench.end(), [&name](const Translation &entry) {
        return name.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0;
    });
    return found == kFrench.end() ? name : QString::fromUtf8(found->french);
}

void fill(QComboBox *box, const QStringList &names, const QString &current) {
    box->clear();
    for (const QString &name : names) {
        box->addItem(inFrench(name), name);
    }
    box->setCurrentIndex(std::max(0, box->findData(current)));
    box->setEnabled(box->count() > 0);
}

double nearest(const QList<double> &values, double wanted) {
    const auto distance = [wanted](double value) { return std::abs(value - wanted); };
    const auto found = std::min_element(values.begin(), values.end(),
                                        [&](double a, double b) { return distance(a) < distance(b); });
    return found == values.end() ? 0 : *found;
}

} // namespace

AcquisitionDialog::AcquisitionDialog(scanner::Scanner &scanner, const scanner::DeviceInfo &device,
                                     QWidget *parent)
    : QDialog(parent),
      m_scanner(scanner),
      m_device(device.name),
      m_source(new QComboBox(this)),
      m_mode(new QComboBox(this)),
      m_resolution(new QComboBox(this)),
      m_hint(new QLabel(this)),
      m_area(new PreviewArea(this)),
      m_state(new QLabel(this)),
      m_progress(new QProgressBar(this)),
      m_previewButton(new QPushButton(QStringLiteral("&Aperçu"), this)),
      m_scanButton(new QPushButton(QStringLiteral("&Numériser"), this)),
      m_cancelButton(new QPushButton(QStringLiteral("Annuler"), this)) {
    nameControls();
    setWindowTitle(QString(QStringLiteral("Numérisation - ") + device.vendor + u' ' + device.model));
    arrange();

    connect(&m_asking, &QFutureWatcherBase::finished, this, &AcquisitionDialog::showOptions);
    connect(&m_scan, &QFutureWatcherBase::progressRangeChanged, m_progress, &QProgressBar::setRange);
    connect(&m_scan, &QFutureWatcherBase::progressValueChanged, m_progress, &QProgressBar::setValue);
    connect(&m_scan, &QFutureWatcherBase::finished, this, &AcquisitionDialog::endScan);
    connect(m_previewButton, &QPushButton::clicked, this, [this] { startScan(true); });
    connect(m_scanButton, &QPushButton::clicked, this, [this] { startScan(false); });
    connect(m_cancelButton, &QPushButton::clicked, this, &AcquisitionDialog::reject);
    askOptions();
}

AcquisitionDialog::~AcquisitionDialog() {
    m_scan.cancel();
}

void AcquisitionDialog::nameControls() {
    setObjectName(QStringLiteral("Numerisation"));
    m_source->setObjectName(QStringLiteral("Source"));
    m_mode->setObjectName(QStringLiteral("Mode"));
    m_resolution->setObjectName(QStringLiteral("Resolution"));
    m_area->setObjectName(QStringLiteral("Zone"));
    m_state->setObjectName(QStringLiteral("Etat"));
    m_progress->setObjectName(QStringLiteral("Progression"));
    m_previewButton->setObjectName(QStringLiteral("Apercu"));
    m_scanButton->setObjectName(QStringLiteral("Numeriser"));
    m_cancelButton->setObjectName(QStringLiteral("Annuler"));
    m_scanButton->setDefault(true);
    // Disabled during a scan, the others hand the keyboard on to Annuler; Enter after it must not close the dialog.
    m_previewButton->setAutoDefault(false);
    m_cancelButton->setAutoDefault(false);
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    m_progress->setTextVisible(false);
}

void AcquisitionDialog::addChoice(QFormLayout *form, const QString &caption, QComboBox *box) {
    box->setEnabled(false);
    form->addRow(caption, box);
}

void AcquisitionDialog::arrange() {
    auto *form = new QFormLayout;
    addChoice(form, QStringLiteral("&Source :"), m_source);
    addChoice(form, QStringLiteral("&Mode :"), m_mode);
    addChoice(form, QStringLiteral("&Résolution :"), m_resolution);
    m_hint->setText(
        QStringLiteral("Après un aperçu, tracez à la souris\nla partie de la vitre à numériser."));
    auto *left = new QVBoxLayout;
    left->addLayout(form);
    left->addWidget(m_hint);
    left->addStretch();
    left->addWidget(m_state);
    left->addWidget(m_progress);
    auto *upper = new QHBoxLayout;
    upper->addLayout(left);
    upper->addWidget(m_area, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_previewButton);
    buttons->addStretch();
    buttons->addWidget(m_scanButton);
    buttons->addWidget(m_cancelButton);
    auto *column = new QVBoxLayout(this);
    column->addLayout(upper, 1);
    column->addLayout(buttons);
}

void AcquisitionDialog::askOptions() {
    setBusy(true, QStringLiteral("Ouverture du scanner…"));
    m_progress->setRange(0, 0);
    m_asking.setFuture(m_scanner.options(m_device));
}

void AcquisitionDialog::showOptions() {
    QString state = QStringLiteral("Prêt.");
    try {
        m_options = m_asking.result();
    } catch (const ScannerError &error) {
        state = error.sentence();
    }
    fill(m_source, m_options.sources, m_options.current.source);
    fill(m_mode, m_options.modes, m_options.current.mode);
    m_resolution->clear();
    for (const double value : m_options.resolutions) {
        m_resolution->addItem(QString(QString::number(value) + u" ppp"), value);
    }
    m_resolution->setCurrentIndex(m_resolution->findData(nearest(m_options.resolutions, kUsualResolution)));
    m_area->setGlass(m_options.glass);
    m_hint->setVisible(!m_options.glass.isEmpty());
    m_area->setVisible(!m_options.glass.isEmpty());
    setBusy(false, state);
    adjustSize();
}

ScanSettings AcquisitionDialog::settings(bool preview) const {
    ScanSettings settings;
    settings.source = m_source->currentData().toString();
    settings.mode = m_mode->currentData().toString();
    settings.preview = preview;
    if (preview) {
        settings.resolution = nearest(m_options.resolutions, 0);
    } else {
        settings.resolution = m_resolution->currentData().toDouble();
        settings.area = m_area->selection();
    }
    return settings;
}

void AcquisitionDialog::startScan(bool preview) {
    m_previewing = preview;
    setBusy(true, preview ? QStringLiteral("Aperçu en cours…") : QStringLiteral("Numérisation en cours…"));
    m_progress->setRange(0, 0);
    m_scan.setFuture(m_scanner.scan(m_device, settings(preview)));
}

void AcquisitionDialog::endScan() {
    QImage scanned;
    QString state = QStringLiteral("Numérisation annulée.");
    try {
        // A failure is thrown here, also by a scan that was cancelled.
        m_scan.waitForFinished();
        if (m_scan.future().resultCount() > 0 && !m_scan.isCanceled()) {
            scanned = m_scan.result();
            state = QStringLiteral("Prêt.");
        }
    } catch (const ScannerError &error) {
        state = error.sentence();
    }
    setBusy(false, state);
    if (scanned.isNull()) {
        return;
    }
    if (m_previewing) {
        m_area->setPreview(scanned);
        return;
    }
    m_picture = scanned;
    accept();
}

void AcquisitionDialog::setBusy(bool busy, const QString &state) {
    m_state->setText(state);
    m_progress->setVisible(busy);
    m_scanButton->setEnabled(!busy);
    m_previewButton->setEnabled(!busy && !m_options.glass.isEmpty());
    m_area->setEnabled(!busy && !m_options.glass.isEmpty());
    for (QComboBox *box : {m_source, m_mode, m_resolution}) {
        box->setEnabled(!busy && box->count() > 0);
    }
    if (!busy) {
        m_scanButton->setFocus();
    }
}

void AcquisitionDialog::reject() {
    if (m_scan.isRunning() && !m_scan.isCanceled()) {
        m_scan.cancel();
        m_state->setText(QStringLiteral("Arrêt du scanner…"));
        return;
    }
    // A driver that does not answer keeps nobody here: the second press closes.
    QDialog::reject();
}

} // namespace platform::scandialogs
