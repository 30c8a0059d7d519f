#pragma once

#include <QString>

namespace platform::webview {
class View;
}

namespace facile {

/// The page shown, in its legacy form. Other events of the program run meanwhile.
/// @throws webimport::ErreurExecution when the browser does not give it
QString LirePage(platform::webview::View &navigateur);

} // namespace facile
