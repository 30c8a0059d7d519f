#pragma once

#include <QString>
#include <memory>

class QLockFile;

namespace platform::desktop {

/// Tells whether the program is already running for this user, and makes this process the running one if not, for as
/// long as the object lives. A process that was killed leaves no claim behind.
class SingleInstance {
public:
    explicit SingleInstance(const QString &application);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    bool IsRunningElsewhere() const { return m_elsewhere; }

private:
    std::unique_ptr<QLockFile> m_lock;
    bool m_elsewhere = false;
};

} // namespace platform::desktop
