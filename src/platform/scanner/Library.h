#pragma once

#include "ScannerTypes.h"

namespace platform::scanner {

/// SANE in use. One at a time, and like everything of SANE of one thread alone.
class Library {
public:
    /// @throws ScannerError
    Library();
    ~Library();

    Library(const Library &) = delete;
    Library &operator=(const Library &) = delete;

    /// Looks for the devices anew, which may take seconds.
    /// @throws ScannerError
    QList<DeviceInfo> devices() const;
};

} // namespace platform::scanner
