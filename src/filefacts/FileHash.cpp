// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/FileHash.h"

#include "model/FailureKind.h"
#include "platform/LoadedLibrary.h"
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

/// Loaded when the first digest is computed: the window leaves that to others, and would wait for thousands
/// of its names as it opens.
struct Library {
    LoadedLibrary loaded{"libcrypto.so.3"};
    LibraryEntry<decltype(EVP_md5)> md5{loaded, "EVP_md5"};
    LibraryEntry<decltype(EVP_sha1)> sha1{loaded, "EVP_sha1"};
    LibraryEntry<decltype(EVP_sha256)> sha256{loaded, "EVP_sha256"};
    LibraryEntry<decltype(EVP_sha512)> sha512{loaded, "EVP_sha512"};
    LibraryEntry<decltype(EVP_MD_CTX_new)> create{loaded, "EVP_MD_CTX_new"};
    LibraryEntry<decltype(EVP_MD_CTX_free)> destroy{loaded, "EVP_MD_CTX_free"};
    LibraryEntry<decltype(EVP_DigestInit_ex)> begin{loaded, "EVP_DigestInit_ex"};
    LibraryEntry<decltype(EVP_DigestUpdate)> update{loaded, "EVP_DigestUpdate"};
    LibraryEntry<decltype(EVP_DigestFinal_ex)> finish{loaded, "EVP_DigestFinal_ex"};
};

const Library &library()
{
    static const Library library;
    return library;
}

const EVP_MD *algorithmOf(Digest digest)
{
    switch (digest) {
    case Digest::MD5:
        return library().md5();
    case Digest::SHA1:
        return library().sha1();
    case Digest::SHA256:
        return library().sha256();
    case Digest::SHA512:
        break;
    }
    return library().sha512();
}

/// A digest under way.
class Hasher {
public:
    explicit Hasher(Digest digest) : _context(library().create())
    {
        library().begin(_context.get(), algorithmOf(digest), static_cast<ENGINE *>(nullptr));
    }

    void update(const char *bytes, std::size_t length) { library().update(_context.get(), bytes, length); }

    QString finish()
    {
        std::array<uchar, EVP_MAX_MD_SIZE> bytes{};
        unsigned length = 0;
        library().finish(_context.get(), bytes.data(), &length);
        const auto digest = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()), length);
        return QString::fromLatin1(digest.toHex());
    }

private:
    struct Deleter {
        void operator()(EVP_MD_CTX *context) const { library().destroy(context); }
    };
    std::unique_ptr<EVP_MD_CTX, Deleter> _context;
};

} // namespace

void setupLibrary()
{
    library();
}

Expected<QStringList> hashesOfFile(int descriptor, std::initializer_list<Digest> digests,
                                   const DigestWatch &watch)
{
    if (!library().loaded.isLoaded())
        return failure(QStringLiteral("the library of the digests is missing"));
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
            return failure(FailureKind::Stopped);
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
