#include "Sandbox.h"

#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform::webview {

namespace {

/// A user without rights needs a user name space of his own for each process that is locked in; not every system gives
/// him any.
bool hasUserNamespaces() {
    const pid_t child = fork();
    if (child == 0) {
        _exit(unshare(CLONE_NEWUSER) == 0 ? 0 : 1);
    }
    int status = -1;
    return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

QString sandboxObstacle() {
    if (qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1 ||
        qEnvironmentVariable("QTWEBENGINE_CHROMIUM_FLAGS").contains(QStringLiteral("--no-sandbox"))) {
        return {};
    }
    if (geteuid() == 0) {
        return QStringLiteral(
            "Le programme est ouvert sous le compte de l'administrateur (root), et les pages du web y "
            "seraient trop dangereuses.\n\n"
            "Ce que vous pouvez faire : fermez-le, puis ouvrez-le sous votre propre compte.");
    }
    if (!hasUserNamespaces()) {
        return QStringLiteral(
            "Ce système ne permet pas au navigateur d'isoler les pages du web, qui pourraient donc "
            "toucher à vos fichiers.\n\n"
            "Ce que vous pouvez faire : demandez à qui s'occupe de cet ordinateur d'autoriser les "
            "« espaces de noms d'utilisateur » (user namespaces), puis recommencez.");
    }
    return {};
}

} // namespace platform::webview
