#pragma once

#include <sane/sane.h>

namespace platform::scanner {

/// The functions of SANE's library.
struct Sane {
    decltype(&sane_init) init;
    decltype(&sane_exit) exit;
    decltype(&sane_get_devices) get_devices;
    decltype(&sane_open) open;
    decltype(&sane_close) close;
    decltype(&sane_get_option_descriptor) get_option_descriptor;
    decltype(&sane_control_option) control_option;
    decltype(&sane_get_parameters) get_parameters;
    decltype(&sane_start) start;
    decltype(&sane_read) read;
    decltype(&sane_cancel) cancel;
    decltype(&sane_strstatus) strstatus;
};

/// The library, loaded by the first call, since the program starts faster without it and is of use without it. May be
/// called from any thread.
/// @throws ScannerError with kNotInstalled
const Sane &sane();

} // namespace platform::scanner
