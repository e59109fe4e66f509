// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/DescriptorIo.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <utility>

namespace quorvin {

namespace {

/// So many bytes, or fewer where the file ends or can't be read.
std::size_t readAt(int descriptor, Exiv2::byte *bytes, std::size_t count, int64_t place)
{
    std::size_t done = 0;
    while (done < count) {
        const ssize_t length
            = ::pread(descriptor, bytes + done, count - done, place + static_cast<int64_t>(done));
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            break;
        done += static_cast<std::size_t>(length);
    }
    return done;
}

} // namespace

DescriptorIo::DescriptorIo(int descriptor, std::size_t size, std::string path, std::size_t buffer)
    : _descriptor(descriptor), _size(size), _path(std::move(path)), _buffer(buffer)
{
}

DescriptorIo::~DescriptorIo()
{
    DescriptorIo::munmap();
}

int DescriptorIo::open()
{
    munmap();
    _isOpen = true;
    return seek(0, beg);
}

int DescriptorIo::close()
{
    munmap();
    _isOpen = false;
    return 0;
}

Exiv2::DataBuf DescriptorIo::read(long count)
{
    if (count > static_cast<long>(_size))
        throw Exiv2::Error(Exiv2::kerInvalidMalloc);
    Exiv2::DataBuf bytes(count);
    bytes.size_ = read(bytes.pData_, count);
    return bytes;
}

long DescriptorIo::read(Exiv2::byte *bytes, long count)
{
    if (count <= 0)
        return 0;
    const auto wanted = static_cast<std::size_t>(count);
    std::size_t done = fromBuffer(bytes, wanted);
    if (done < wanted && wanted - done >= _buffer.size()) {
        const std::size_t length = readAt(_descriptor, bytes + done, wanted - done, _place);
        _place += static_cast<int64_t>(length);
        done += length;
    } else if (done < wanted) {
        fillBuffer();
        done += fromBuffer(bytes + done, wanted - done);
    }
    _metEnd = _metEnd || done < wanted;
    return static_cast<long>(done);
}

int DescriptorIo::getb()
{
    Exiv2::byte value = 0;
    return read(&value, 1) == 1 ? value : EOF;
}

void DescriptorIo::transfer(Exiv2::BasicIo &)
{
    throw Exiv2::Error(Exiv2::kerFunctionNotSupported, "transfer");
}

int DescriptorIo::seek(long offset, Position from)
{
    const int64_t start = from == beg ? 0 : from == cur ? _place : static_cast<int64_t>(_size);
    int64_t place = 0;
    if (__builtin_add_overflow(start, offset, &place) || place < 0)
        return -1;
    _place = place;
    _metEnd = false;
    return 0;
}

Exiv2::byte *DescriptorIo::mmap(bool)
{
    munmap();
    void *mapping = ::mmap(nullptr, _size, PROT_READ, MAP_SHARED, _descriptor, 0);
    if (mapping == MAP_FAILED)
        throw Exiv2::Error(Exiv2::kerCallFailed, _path, Exiv2::strError(), "mmap");
    _mapping = mapping;
    return static_cast<Exiv2::byte *>(mapping);
}

int DescriptorIo::munmap()
{
    return _mapping ? ::munmap(std::exchange(_mapping, nullptr), _size) : 0;
}

std::size_t DescriptorIo::fromBuffer(Exiv2::byte *bytes, std::size_t count)
{
    const int64_t skipped = _place - _bufferPlace;
    if (skipped < 0 || skipped >= static_cast<int64_t>(_buffered))
        return 0;
    const std::size_t length = std::min(count, _buffered - static_cast<std::size_t>(skipped));
    std::memcpy(bytes, _buffer.data() + skipped, length);
    _place += static_cast<int64_t>(length);
    return length;
}

void DescriptorIo::fillBuffer()
{
    _bufferPlace = _place;
    _buffered = readAt(_descriptor, _buffer.data(), _buffer.size(), _place);
}

} // namespace quorvin
