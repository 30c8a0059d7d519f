#pragma once

#include <QByteArray>
#include <QHash>

#include <future>
#include <mutex>
#include <utility>

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

    /// Begins to derive the key of a file of SQLCipher 3 on another thread.
    void prepare(const QByteArray &passphrase, const QByteArray &salt);

    /// That key; waits for it where it is being derived.
    QByteArray key(const QByteArray &passphrase, const QByteArray &salt);

private:
    KeyCache() = default;

    std::shared_future<QByteArray> find(const QByteArray &passphrase, const QByteArray &salt,
                                        std::launch where);

    std::mutex m_mutex;
    QHash<std::pair<QByteArray, QByteArray>, std::shared_future<QByteArray>> m_keys;
};

} // namespace platform::database
