#include "KeyDerivation.h"

#include <QtEndian>

// The compression function itself is four times as fast here as PKCS5_PBKDF2_HMAC_SHA1, which sets up a
// digest context in each round: 10 ms against 40 ms, for which the start of the program waits.
#define OPENSSL_SUPPRESS_DEPRECATED
#include <openssl/sha.h>

#include <algorithm>
#include <array>

namespace platform::database {

namespace {

constexpr int kCipherRounds = 64000;

using Digest = std::array<quint32, 5>;
using Block = std::array<uchar, SHA_CBLOCK>;

Digest digestOf(const SHA_CTX &state) {
    return {state.h0, state.h1, state.h2, state.h3, state.h4};
}

void store(const Digest &digest, uchar *bytes) {
    for (const quint32 word : digest) {
        qToBigEndian(word, bytes);
        bytes += sizeof word;
    }
}

/// HMAC of messages with one key. The states after the padded key, inner and outer, are made once.
class Hmac {
public:
    explicit Hmac(const QByteArray &key) {
        Block padded{};
        if (key.size() > SHA_CBLOCK) {
            SHA1(reinterpret_cast<const uchar *>(key.constData()), size_t(key.size()), padded.data());
        } else {
            std::copy(key.cbegin(), key.cend(), padded.begin());
        }
        m_inner = stateAfter(padded, 0x36);
        m_outer = stateAfter(padded, 0x5c);
        m_block[SHA_DIGEST_LENGTH] = 0x80;
        constexpr quint64 kMessageBits = quint64{8} * (SHA_CBLOCK + SHA_DIGEST_LENGTH);
        qToBigEndian(kMessageBits, &m_block[SHA_CBLOCK - sizeof kMessageBits]);
    }

    Digest operator()(const QByteArray &message) {
        SHA_CTX state = m_inner;
        SHA1_Update(&state, message.constData(), size_t(message.size()));
        std::array<uchar, SHA_DIGEST_LENGTH> inner{};
        SHA1_Final(inner.data(), &state);
        std::copy(inner.begin(), inner.end(), m_block.begin());
        return transform(m_outer);
    }

    Digest operator()(const Digest &message) {
        store(message, m_block.data());
        store(transform(m_inner), m_block.data());
        return transform(m_outer);
    }

private:
    static SHA_CTX stateAfter(Block padded, uchar mask) {
        for (uchar &byte : padded) {
            byte ^= mask;
        }
        SHA_CTX state{};
        SHA1_Init(&state);
        SHA1_Update(&state, padded.data(), padded.size());
        return state;
    }

    Digest transform(SHA_CTX state) const {
        SHA1_Transform(&state, m_block.data());
        return digestOf(state);
    }

    SHA_CTX m_inner{};
    SHA_CTX m_outer{};
    /// A digest as the last block of a message of one block and itself.
    Block m_block{};
};

} // namespace

QByteArray pbkdf2Sha1(const QByteArray &passphrase, const QByteArray &salt, int rounds, int size) {
    Hmac hmac(passphrase);
    QByteArray key;
    for (quint32 part = 1; key.size() < size; ++part) {
        const quint32 number = qToBigEndian(part);
        Digest link = hmac(salt + QByteArray(reinterpret_cast<const char *>(&number), sizeof number));
        Digest sum = link;
        for (int round = 1; round < rounds; ++round) {
            link = hmac(link);
            for (size_t i = 0; i < sum.size(); ++i) {
                sum[i] ^= link[i];
            }
        }
        std::array<uchar, SHA_DIGEST_LENGTH> bytes{};
        store(sum, bytes.data());
        key.append(reinterpret_cast<const char *>(bytes.data()), SHA_DIGEST_LENGTH);
    }
    key.truncate(size);
    return key;
}

KeyCache &KeyCache::instance() {
    static KeyCache cache;
    return cache;
}

std::shared_future<QByteArray> KeyCache::find(const QByteArray &passphrase, const QByteArray &salt,
                                              std::launch where) {
    const std::lock_guard lock(m_mutex);
    auto &key = m_keys[{passphrase, salt}];
    if (!key.valid()) {
        key = std::async(where, pbkdf2Sha1, passphrase, salt, kCipherRounds, kKeySize);
    }
    return key;
}

void KeyCache::prepare(const QByteArray &passphrase, const QByteArray &salt) {
    find(passphrase, salt, std::launch::async | std::launch::deferred); // deferred where no thread is left
}

QByteArray KeyCache::key(const QByteArray &passphrase, const QByteArray &salt) {
    return find(passphrase, salt, std::launch::deferred).get();
}

} // namespace platform::database
