#include "LirePage.h"

#include "platform/webview/Engine.h"
#include "webimport/PageAncienne.h"

#include <QEventLoop>
#include <QTimer>

#include <chrono>

namespace webimport::facile {

namespace {

// A page that keeps itself busy answers late or never.
constexpr std::chrono::seconds kPatience{30};

/// What a late answer may still find when nobody waits for it.
struct Lecture {
    std::optional<QString> texte;
    QEventLoop attente;
    bool finie = false;
};

} // namespace

std::optional<QString> LirePage(platform::webview::View &navigateur) {
    const auto lecture = std::make_shared<Lecture>();
    navigateur.runScript(ScriptPageAncienne() + QStringLiteral("(document.documentElement)"),
                         [lecture](const std::optional<QString> &texte) {
                             lecture->texte = texte;
                             lecture->finie = true;
                             lecture->attente.quit();
                         });
    if (!lecture->finie) {
        QTimer::singleShot(kPatience, &lecture->attente, &QEventLoop::quit);
        lecture->attente.exec();
    }
    return lecture->texte;
}

} // namespace webimport::facile
