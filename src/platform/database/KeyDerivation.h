#pragma once

#include <QByteArray>
#include <QHash>

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

    /// The key of a file of SQLCipher 3. A call while another thread derives waits for it.
    QByteArray key(const QByteArray &passphrase, const QByteArray &salt);

private:
    KeyCache() = default;

    std::mutex m_mutex;
    QHash<std::pair<QByteArray, QByteArray>, QByteArray> m_keys;
};

} // namespace platform::database
