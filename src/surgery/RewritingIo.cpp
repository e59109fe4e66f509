// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/RewritingIo.h"

#include "platform/FileCopy.h"
#include "platform/NativePath.h"

#include <sys/mman.h>
#include <unistd.h>

#include <utility>

namespace quorvin {

namespace {

/// The library copies the whole file by 4 KiB.
constexpr std::size_t kReadAtOnce = 1 << 18;

} // namespace

RewritingIo::RewritingIo(const RegularFile &original, int copy)
    : DescriptorIo(original.descriptor(), original.size(), encodePath(original.resolvedPath()).toStdString(),
                   kReadAtOnce),
      _original(original.descriptor()),
      _copy(copy)
{
}

RewritingIo::~RewritingIo()
{
    RewritingIo::munmap();
}

void RewritingIo::transfer(Exiv2::BasicIo &made)
{
    munmap();
    if (made.open() != 0)
        throw Exiv2::Error(Exiv2::kerDataSourceOpenFailed, made.path(), Exiv2::strError());
    if (::ftruncate(_copy, 0) != 0 || !writeBytes(_copy, made.mmap(), made.size(), 0))
        throw Exiv2::Error(Exiv2::kerTransferFailed, path(), Exiv2::strError());
    made.close();
}

Exiv2::byte *RewritingIo::mmap(bool isWriteable)
{
    if (!isWriteable)
        return DescriptorIo::mmap(false);
    munmap();
    void *mapping = copyBytes(_original, _copy)
        ? ::mmap(nullptr, size(), PROT_READ | PROT_WRITE, MAP_SHARED, _copy, 0)
        : MAP_FAILED;
    if (mapping == MAP_FAILED)
        throw Exiv2::Error(Exiv2::kerCallFailed, path(), Exiv2::strError(), "mmap");
    _changeable = mapping;
    return static_cast<Exiv2::byte *>(mapping);
}

int RewritingIo::munmap()
{
    return _changeable ? ::munmap(std::exchange(_changeable, nullptr), size()) : DescriptorIo::munmap();
}

} // namespace quorvin
