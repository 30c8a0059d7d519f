#pragma once

namespace platform::webview {

/// Whether the browser's processes can be locked in, as they insist on: the browser ends the whole program otherwise.
/// True also where the user has switched that off.
bool canStartProcesses();

} // namespace platform::webview
