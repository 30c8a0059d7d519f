#include "Library.h"

#include "Sane.h"

namespace platform::scanner {

Library::Library() {
    const SANE_Status status = sane().init(nullptr, nullptr);
    if (status != SANE_STATUS_GOOD) {
        throw ScannerError(status);
    }
}

Library::~Library() {
    sane().exit();
}

QList<DeviceInfo> Library::devices() const {
    const SANE_Device **list = nullptr;
    const SANE_Status status = sane().get_devices(&list, SANE_FALSE);
    if (status != SANE_STATUS_GOOD) {
        throw ScannerError(status);
    }
    QList<DeviceInfo> devices;
    for (; list != nullptr && *list != nullptr; ++list) {
        devices.append({QString::fromUtf8((*list)->name), QString::fromUtf8((*list)->vendor),
                        QString::fromUtf8((*list)->model)});
    }
    return devices;
}

} // namespace platform::scanner
