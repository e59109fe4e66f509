// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <exiv2/exiv2.hpp>

#include <string>
#include <vector>

namespace quorvin {

/// Lets exiv2 read a file through a descriptor that is open already. The library opens what it reads anew at
/// each of its steps; here that only goes back to the start, and what has been read stays at hand. Behaves as
/// the library's own `FileIo` does: a seek may lead past the end, and only a read that comes short meets it.
/// Nothing can be written. One thread.
class DescriptorIo : public Exiv2::BasicIo {
public:
    /// The descriptor must outlive the object. `path` tells the library the file's name, nothing is opened by
    /// it. `size` is in bytes, as is what is read at once at least.
    DescriptorIo(int descriptor, std::size_t size, std::string path, std::size_t buffer = 8192);
    ~DescriptorIo() override;

    int open() override;
    int close() override;
    long write(const Exiv2::byte *, long) override { return 0; }
    long write(Exiv2::BasicIo &) override { return 0; }
    int putb(Exiv2::byte) override { return -1; }
    Exiv2::DataBuf read(long count) override;
    long read(Exiv2::byte *bytes, long count) override;
    int getb() override;
    void transfer(Exiv2::BasicIo &) override;
    int seek(long offset, Position from) override;
    /// The whole file; throws what the library's own throws.
    Exiv2::byte *mmap(bool isWriteable) override;
    int munmap() override;
    long tell() const override { return static_cast<long>(_place); }
    std::size_t size() const override { return _size; }
    bool isopen() const override { return _isOpen; }
    int error() const override { return 0; }
    bool eof() const override { return _metEnd; }
    std::string path() const override { return _path; }

private:
    std::size_t fromBuffer(Exiv2::byte *bytes, std::size_t count);
    void fillBuffer();

    int _descriptor;
    std::size_t _size;
    std::string _path;
    bool _isOpen = false;
    bool _metEnd = false;
    int64_t _place = 0;
    std::vector<Exiv2::byte> _buffer;
    int64_t _bufferPlace = 0; ///< of its first byte in the file
    std::size_t _buffered = 0; ///< bytes in it
    void *_mapping = nullptr;
};

} // namespace quorvin
