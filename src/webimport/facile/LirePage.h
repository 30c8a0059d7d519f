#pragma once

#include <QString>

#include <optional>

namespace platform::webview {
class View;
}

namespace webimport::facile {

/// The page shown, as page-ancienne.js writes it; nothing when it does not answer within 30 seconds, or dies. Other events of the
/// program run meanwhile.
std::optional<QString> LirePage(platform::webview::View &navigateur);

} // namespace webimport::facile
