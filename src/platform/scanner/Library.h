#pragma once

#include "ScannerTypes.h"

namespace platform::scanner {

/// SANE in use. One at a time, and like everything of SANE of one thread alone. Not for longer than one task: drivers
/// keep what they know of a device, and some end the program by it when the device has gone in between.
class Library {
public:
    /// @throws ScannerError
    Library();
    ~Library();

    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    /// Looks for the devices again, which may take seconds.
    /// @throws ScannerError
    QList<DeviceInfo> devices() const;
};

} // namespace platform::scanner
