#pragma once

#include "Library.h"

#include <QImage>

#include <functional>
#include <optional>
#include <sane/sane.h>

namespace platform::scanner {

class FrameAssembler;

/// An open device, with SANE in use for it. All but the destructor throw ScannerError.
class Device {
public:
    explicit Device(const QString &name);
    ~Device();

    Device(const Device &) = delete;
    Device &operator=(const Device &) = delete;

    ScanOptions options() const;

    /// What the device does not offer is passed over.
    void apply(const ScanSettings &settings);

    /// Takes how much is done, from 0 to 1, none when that is unknown, and says whether to go on.
    using Progress = std::function<bool(std::optional<double>)>;

    /// Scans one picture.
    /// @return null when progress said no
    QImage scan(const Progress &progress);

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
    bool readFrame(FrameAssembler &assembler, const Progress &progress);

    Library m_library;
    SANE_Handle m_handle = nullptr;
};

} // namespace platform::scanner
