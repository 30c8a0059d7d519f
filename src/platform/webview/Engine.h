#pragma once

#include <QByteArray>
#include <QString>
#include <QtPlugin>

#include <functional>
#include <memory>
#include <optional>

class QUrl;
class QWidget;

namespace platform::webview {

/// What a view reports to the window that shows it, on the thread of the interface. None of them may throw.
struct Events {
    std::function<void()> began;                          ///< another page is on its way
    std::function<void()> complete;                       ///< a page is there, or will not come
    std::function<void(bool back, bool forward)> history; ///< whether there is a page before and one behind
    std::function<void(const QString &address)> hovered;  ///< the link under the pointer; empty for none
};

/// A view of the web. It keeps nothing of what is visited beyond its life, takes no downloads, grants no page anything,
/// and opens what asks for a window of its own in itself.
class View {
public:
    /// Takes the text that a script gives, or nothing.
    using Result = std::function<void(const std::optional<QString> &)>;

    View() = default;
    View(const View &) = delete;
    View &operator=(const View &) = delete;
    virtual ~View() = default;

    /// The control, a child of the widget that the view was made in.
    virtual QWidget &widget() = 0;

    virtual void navigate(const QUrl &address) = 0;
    virtual void back() = 0;
    virtual void forward() = 0;

    /// The address of the page shown.
    virtual QUrl address() const = 0;

    /// Runs a script beside those of the page, which can neither see nor change it.
    /// @param result gets the script's text, later, or at once where the page has died; nothing when it gave none. Never
    /// called where the page keeps itself busy forever
    virtual void runScript(const QString &source, Result result) = 0;
};

/// The part of the program that goes to the web. It lies in a library of its own, which is loaded when it is first
/// needed.
class Engine {
public:
    virtual ~Engine() = default;

    /// What keeps the engine from working on this computer, a French text; empty for nothing.
    virtual QString obstacle() const = 0;

    /// Makes a view in a widget. Of the files of this computer it shows those in one folder.
    virtual std::unique_ptr<View> makeView(QWidget &parent, const QString &folder, Events events) = 0;

    /// Fetches what an address names, http, https or a file in that folder: without cookies, through redirections, at
    /// most 32 MB within 30 seconds. Other events of the program run meanwhile. Nothing on any failure.
    virtual std::optional<QByteArray> openUrl(const QUrl &address, const QString &folder) = 0;
};

} // namespace platform::webview

Q_DECLARE_INTERFACE(platform::webview::Engine, "savorel.platform.webview.Engine/1")
