// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/FileHash.h"

#include "platform/RegularFile.h"

#include <fcntl.h>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <vector>

namespace quorvin::FileHash {

namespace {

constexpr std::size_t kChunk = 1 << 20;

const EVP_MD *algorithmOf(Digest digest)
{
    switch (digest) {
    case Digest::MD5:
        return EVP_md5();
    case Digest::SHA1:
        return EVP_sha1();
    case Digest::SHA256:
        return EVP_sha256();
    case Digest::SHA512:
        break;
    }
    return EVP_sha512();
}

/// A digest under way.
class Hasher {
public:
    explicit Hasher(Digest digest) : _context(EVP_MD_CTX_new())
    {
        EVP_DigestInit_ex(_context.get(), algorithmOf(digest), nullptr);
    }

    void update(const char *bytes, std::size_t length) { EVP_DigestUpdate(_context.get(), bytes, length); }

    QString finish()
    {
        std::array<uchar, EVP_MAX_MD_SIZE> bytes{};
        unsigned length = 0;
        EVP_DigestFinal_ex(_context.get(), bytes.data(), &length);
        const auto digest = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()), length);
        return QString::fromLatin1(digest.toHex());
    }

private:
    struct Deleter {
        void operator()(EVP_MD_CTX *context) const { EVP_MD_CTX_free(context); }
    };
    std::unique_ptr<EVP_MD_CTX, Deleter> _context;
};

} // namespace

Expected<QStringList> hashesOfFile(int descriptor, std::initializer_list<Digest> digests,
                                   const DigestWatch &watch)
{
    struct stat facts { };
    const quint64 size = ::fstat(descriptor, &facts) == 0 ? static_cast<quint64>(facts.st_size) : 0;
    std::vector<Hasher> hashers(digests.begin(), digests.end());
    std::vector<char> chunk(kChunk);
    ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_SEQUENTIAL);
    for (off_t offset = 0;;) {
        const ssize_t count = ::pread(descriptor, chunk.data(), chunk.size(), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return posixFailure(errno);
        if (count == 0)
            break;
        for (Hasher &hasher : hashers)
            hasher.update(chunk.data(), static_cast<std::size_t>(count));
        offset += count;
        const auto done = static_cast<quint64>(offset);
        if (watch && !watch({done, std::max(done, size)}))
            return failure(QStringLiteral("stopped"));
    }
    QStringList hashes;
    for (Hasher &hasher : hashers)
        hashes.append(hasher.finish());
    return hashes;
}

Expected<QString> hashOfFileAtPath(const QString &path, Digest digest)
{
    return RegularFile::open(path)
        .and_then([&](const RegularFile &file) { return hashesOfFile(file.descriptor(), {digest}); })
        .map([](const QStringList &hashes) { return hashes.first(); });
}

Expected<QString> md5HashOfFileAtPath(const QString &path)
{
    return hashOfFileAtPath(path, Digest::MD5);
}

Expected<QString> sha1HashOfFileAtPath(const QString &path)
{
    return hashOfFileAtPath(path, Digest::SHA1);
}

Expected<QString> sha512HashOfFileAtPath(const QString &path)
{
    return hashOfFileAtPath(path, Digest::SHA512);
}

QString sha1String(const QString &string)
{
    const QByteArray bytes = string.toUtf8();
    Hasher hasher(Digest::SHA1);
    hasher.update(bytes.constData(), static_cast<std::size_t>(string.size()));
    return hasher.finish();
}

} // namespace quorvin::FileHash
