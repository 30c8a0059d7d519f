#include "Sandbox.h"

#include <QString>

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

bool canStartProcesses() {
    return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") == 1 ||
           qEnvironmentVariable("QTWEBENGINE_CHROMIUM_FLAGS").contains(QStringLiteral("--no-sandbox")) ||
           (geteuid() != 0 && hasUserNamespaces());
}

} // namespace platform::webview
