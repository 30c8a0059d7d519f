#pragma once

#include <QString>

#include <stdexcept>

namespace platform::webview {

class Engine;

/// The web is out of reach on this computer; what() is a French text in UTF-8.
class WebViewError : public std::runtime_error {
public:
    explicit WebViewError(const QString &text) : std::runtime_error(text.toUtf8().toStdString()) {}
};

/// The engine in the library of this path, loaded at the first call; it stays for the run.
/// @throws WebViewError when it is missing, cannot be loaded, or cannot work here
Engine &loadEngine(const QString &path);

} // namespace platform::webview
