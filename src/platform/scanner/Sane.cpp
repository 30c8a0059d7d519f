#include "Sane.h"

#include "ScannerTypes.h"

#include <QLibrary>

namespace platform::scanner {

namespace {

template <class Function>
void resolve(QLibrary &library, Function &function, const char *name) {
    function = reinterpret_cast<Function>(library.resolve(name));
    if (function == nullptr) {
        throw ScannerError(kNotInstalled, "SANE is not installed");
    }
}

Sane load() {
    constexpr int kVersion = 1;
    QLibrary library(QStringLiteral("sane"), kVersion);
    // A thread that a driver holds may still be in it when the process ends.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    Sane sane{};
    resolve(library, sane.init, "sane_init");
    resolve(library, sane.exit, "sane_exit");
    resolve(library, sane.get_devices, "sane_get_devices");
    resolve(library, sane.open, "sane_open");
    resolve(library, sane.close, "sane_close");
    resolve(library, sane.get_option_descriptor, "sane_get_option_descriptor");
    resolve(library, sane.control_option, "sane_control_option");
    resolve(library, sane.get_parameters, "sane_get_parameters");
    resolve(library, sane.start, "sane_start");
    resolve(library, sane.read, "sane_read");
    resolve(library, sane.cancel, "sane_cancel");
    resolve(library, sane.strstatus, "sane_strstatus");
    return sane;
}

} // namespace

const Sane &sane() {
    static const Sane loaded = load();
    return loaded;
}

} // namespace platform::scanner
