// Stands between the program and the C library, as a library that is loaded before all others.

#include "Faults.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using faults::Kind;

struct Plan {
    Kind kind = Kind::None;
    int at = 0;
    int error = 0;
    int calls = 0;
};

Plan plan;

enum class Call { Write, Change, Removal };

bool fails(Call call) {
    switch (plan.kind) {
    case Kind::AllFail:
        return plan.calls >= plan.at && (call != Call::Removal || plan.error != ENOSPC);
    case Kind::OneFails:
        return plan.calls == plan.at;
    case Kind::ShortWrite:
        return plan.calls == plan.at + (call == Call::Write ? 1 : 0);
    default:
        return false;
    }
}

template <class Function>
Function *real(const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

template <class Act>
auto act(Call call, Act action) -> decltype(action()) {
    ++plan.calls;
    if (plan.kind == Kind::KillBefore && plan.calls == plan.at) {
        raise(SIGKILL);
    }
    if (fails(call)) {
        errno = plan.error;
        return -1;
    }
    const auto result = action();
    if (plan.kind == Kind::KillAfter && plan.calls == plan.at) {
        raise(SIGKILL);
    }
    return result;
}

/// Pipes and the terminal do not fail.
bool onDisk(int file) {
    struct stat state {};

    return fstat(file, &state) == 0 && (S_ISREG(state.st_mode) || S_ISDIR(state.st_mode));
}

size_t partOf(size_t size) {
    return plan.kind == Kind::ShortWrite && plan.calls == plan.at ? size / 2 : size;
}

} // namespace

namespace faults {

void arm(Kind kind, int at, int error) {
    plan = {kind, at, error, 0};
}

int calls() {
    return plan.calls;
}

} // namespace faults

extern "C" {

ssize_t write(int file, const void *bytes, size_t size) {
    static auto *const next = real<decltype(write)>("write");
    return onDisk(file) ? act(Call::Write, [&] { return next(file, bytes, partOf(size)); })
                        : next(file, bytes, size);
}

ssize_t pwrite(int file, const void *bytes, size_t size, off_t place) {
    static auto *const next = real<decltype(pwrite)>("pwrite");
    return act(Call::Write, [&] { return next(file, bytes, partOf(size), place); });
}

ssize_t pwrite64(int file, const void *bytes, size_t size, off64_t place) {
    static auto *const next = real<decltype(pwrite64)>("pwrite64");
    return act(Call::Write, [&] { return next(file, bytes, partOf(size), place); });
}

// A process that ends loses nothing of what it has written: the real ones would take nearly all the time of the test.
int fsync(int) {
    return act(Call::Change, [] { return 0; });
}

int fdatasync(int) {
    return act(Call::Change, [] { return 0; });
}

int ftruncate(int file, off_t size) noexcept {
    static auto *const next = real<int(int, off_t)>("ftruncate");
    return act(Call::Removal, [&] { return next(file, size); });
}

int ftruncate64(int file, off64_t size) noexcept {
    static auto *const next = real<int(int, off64_t)>("ftruncate64");
    return act(Call::Removal, [&] { return next(file, size); });
}

int rename(const char *from, const char *to) noexcept {
    static auto *const next = real<int(const char *, const char *)>("rename");
    return act(Call::Change, [&] { return next(from, to); });
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept {
    static auto *const next = real<int(int, const char *, int, const char *, int)>("linkat");
    return act(Call::Change, [&] { return next(fromFolder, from, toFolder, to, flags); });
}

int unlink(const char *name) noexcept {
    static auto *const next = real<int(const char *)>("unlink");
    return act(Call::Removal, [&] { return next(name); });
}

int remove(const char *name) noexcept {
    static auto *const next = real<int(const char *)>("remove");
    return act(Call::Removal, [&] { return next(name); });
}
}
