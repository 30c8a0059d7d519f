#pragma once

#include <QString>

namespace platform::webview {

/// What keeps the browser's processes from being locked in, as they insist on (the browser ends the whole program
/// otherwise), and what the user can do: a French text. Empty for nothing, and where the user has switched that off.
QString sandboxObstacle();

} // namespace platform::webview
