#pragma once

#include "Files.h"

#include "store/Programme.h"

#include <csignal>
#include <cstdlib>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

/// Waits for the disk that are left before this process kills itself; none is counted below zero.
inline int &waitsLeft() {
    static int left = -1;
    return left;
}

inline int waitFor(long call, int file) {
    if (waitsLeft() >= 0 && waitsLeft()-- == 0) {
        std::raise(SIGKILL);
    }
    return static_cast<int>(syscall(call, file));
}

// The engine's calls come here, since a program's own functions go before those of the libraries. Every commit has some.
extern "C" int fdatasync(int file) {
    return waitFor(SYS_fdatasync, file);
}

extern "C" int fsync(int file) {
    return waitFor(SYS_fsync, file);
}

/// Puts those bytes in the place of the book and does something to it in a process of its own; true when that came to
/// the end before it died.
template <class Act>
bool survives(const QByteArray &book, Act act) {
    QFile::remove(store::CheminBase() + QStringLiteral("-journal"));
    writeFile(store::CheminBase(), book);
    const pid_t child = fork();
    if (child == 0) {
        act();
        _exit(EXIT_SUCCESS);
    }
    int state = 0;
    waitpid(child, &state, 0);
    return WIFEXITED(state) && WEXITSTATUS(state) == EXIT_SUCCESS;
}
