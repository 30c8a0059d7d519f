#pragma once

#include "ScannerTypes.h"

#include <QFuture>
#include <QImage>

#include <memory>

namespace platform::scanner {

/// The scanners of this machine. Drivers may take long or never answer, so everything is done on a thread of its
/// own, one task after the other, and a result is a future: a failure comes out of it as ScannerError, and
/// cancelling it ends the task as soon as the driver lets go. A caller never waits for a driver, not even in the
/// destructor: a thread that is held by one is left to itself.
class Scanner {
public:
    Scanner();
    ~Scanner();

    Scanner(const Scanner &) = delete;
    Scanner &operator=(const Scanner &) = delete;

    /// Looks for the devices again.
    QFuture<QList<DeviceInfo>> devices();

    QFuture<ScanOptions> options(const QString &device);

    /// Scans one picture. The future's progress goes from 0 to 100; its range is 0 to 0 while the length of the
    /// picture is unknown. A cancelled one has no result.
    QFuture<QImage> scan(const QString &device, const ScanSettings &settings);

private:
    class Tasks;

    std::shared_ptr<Tasks> m_tasks;
};

} // namespace platform::scanner
