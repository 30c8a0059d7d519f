#pragma once

#include <QByteArray>
#include <QHash>

#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace platform::database {

/// Bytes of salt at the start of a SQLCipher file, and of the key made with it.
inline constexpr int kSaltSize = 16;
inline constexpr int kKeySize = 32;

/// PBKDF2 with HMAC-SHA-1 (RFC 8018).
QByteArray pbkdf2Sha1(const QByteArray &passphrase, const QByteArray &salt, int rounds, int size);

/// The keys of the process: deriving one takes 64,000 rounds, so it is done once for each passphrase and
/// salt.
class KeyCache {
public:
    static KeyCache &instance();

    /// The key of a file of SQLCipher 3. A call while another thread derives waits for it.
    QByteArray key(const QByteArray &passphrase, const QByteArray &salt);

    /// Asks for a key on another thread, and wakes the library of ciphers there.
    /// @param readSalt is called there; no salt ends it
    void prepare(const QByteArray &passphrase, std::function<QByteArray()> readSalt);

private:
    KeyCache() = default;

    std::mutex m_mutex;
    QHash<std::pair<QByteArray, QByteArray>, QByteArray> m_keys;
    /// Last, so that they have ended before the rest is destroyed.
    std::vector<std::jthread> m_threads;
};

} // namespace platform::database
