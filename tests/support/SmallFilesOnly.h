#pragma once

#include <sys/resource.h>

#include <csignal>

/// As long as it lives, no file grows beyond some bytes: what a full disk does to a writer.
class SmallFilesOnly {
public:
    explicit SmallFilesOnly(rlim_t bytes = 8192) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        // Without this a write beyond the limit would end the process instead of failing.
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
    }

    SmallFilesOnly(const SmallFilesOnly &) = delete;
    SmallFilesOnly &operator=(const SmallFilesOnly &) = delete;

    ~SmallFilesOnly() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};
