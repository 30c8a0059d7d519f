#pragma once

#include <QList>
#include <QRectF>
#include <QString>
#include <QStringList>

#include <stdexcept>

namespace platform::scanner {

/// The status of an error when SANE is not installed; SANE's own are not negative.
inline constexpr int kNotInstalled = -1;

/// What a scanner or its driver refused. what() is the English text of SANE for it.
class ScannerError : public std::runtime_error {
public:
    /// @param status a SANE_Status
    explicit ScannerError(int status);
    ScannerError(int status, const char *text);

    /// A SANE_Status, or kNotInstalled.
    int status() const { return m_status; }

    /// A sentence for the user, in French.
    QString sentence() const;

private:
    int m_status;
};

/// A device that SANE lists.
struct DeviceInfo {
    QString name; // by which SANE opens it
    QString vendor;
    QString model;
};

/// How a picture is to be scanned. An empty text or a 0 leaves the device's own choice.
struct ScanSettings {
    QString source;
    QString mode;
    double resolution = 0; // dots per inch
    /// The part of the glass, as fractions of its width and height from the upper left corner.
    QRectF area{0, 0, 1, 1};
    /// Quick and rough: the device's own way where it has one, with the resolution given.
    bool preview = false;
};

/// What a device lets the user choose; a list is empty where there is no choice.
struct ScanOptions {
    QStringList sources;
    QStringList modes;
    QList<double> resolutions; // dots per inch, the usual ones of a range
    /// Width and height of the glass in one unit; empty where no area can be chosen, nor be shown by a preview.
    QSizeF glass;
    /// What the device is set to when it is opened.
    ScanSettings current;
};

} // namespace platform::scanner
