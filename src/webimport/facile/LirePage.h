#pragma once

#include <QString>

namespace platform::webview {
class View;
}

namespace webimport::facile {

/// The page shown, in its legacy form. Other events of the program run meanwhile.
/// @throws ErreurExecution when the browser does not give it
QString LirePage(platform::webview::View &navigateur);

} // namespace webimport::facile
