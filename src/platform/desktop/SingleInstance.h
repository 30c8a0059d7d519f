#pragma once

#include <QString>

namespace platform::desktop {

/// Tells whether the program is already running for this user, and makes this process the running one if not, until Release or
/// the end of the object. The claim is a lock that the kernel drops with the process, however that ends: a file that
/// is left behind claims nothing.
class SingleInstance {
public:
    explicit SingleInstance(const QString &application);
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    bool IsRunningElsewhere() const { return m_elsewhere; }

    /// Gives the claim up and removes its file, for a process that ends without unwinding.
    void Release();

private:
    enum class Claim { Made, Taken, Impossible };

    /// Claims the file of that path; Impossible where it cannot be opened.
    Claim claim(const QString &path);

    QByteArray m_path;     // of the file locked
    int m_descriptor = -1; // of that file; -1 without a claim
    bool m_elsewhere = false;
};

} // namespace platform::desktop
