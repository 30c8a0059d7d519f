#pragma once

#include "ScannerTypes.h"

#include <QImage>

#include <functional>
#include <optional>
#include <sane/sane.h>

namespace platform::scanner {

/// An open device. All but the destructor throw ScannerError.
class Device {
public:
    explicit Device(const QString &name);
    ~Device();

    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    ScanOptions options() const;

    /// What the device does not offer is passed over.
    void apply(const ScanSettings &settings);

    /// Scans one picture.
    /// @param progress takes how much is done, from 0 to 1, none when that is unknown, and says whether to go on
    /// @return null when progress said no
    QImage scan(const std::function<bool(std::optional<double>)> &progress);

private:
    struct Option {
        SANE_Int index;
        const SANE_Option_Descriptor *descriptor;
    };

    std::optional<Option> find(const char *name) const;
    QStringList texts(const char *name) const;
    QString text(const char *name) const;
    QList<double> resolutions() const;
    double number(const Option &option) const;
    QSizeF glass() const;
    void control(const Option &option, void *value);
    void set(const char *name, const QString &value);
    void set(const char *name, double value);
    void set(const char *name, bool value);
    void setArea(const QRectF &area);

    SANE_Handle m_handle = nullptr;
};

} // namespace platform::scanner
