// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RegularFile.h"
#include "readers/image/DescriptorIo.h"

namespace quorvin {

/// Lets exiv2 rewrite an image so that its file stays as it is, and the result goes into another one. Most
/// formats the library makes anew from the old file, and hands them over; only where it wants to change
/// single bytes in the mapped file is that copied before. One thread.
class RewritingIo final : public DescriptorIo {
public:
    /// Both must outlive the object. `copy` is the descriptor of an empty file, to read and write.
    RewritingIo(const RegularFile &original, int copy);
    ~RewritingIo() override;

    /// These two throw what the library throws where its own fail.
    void transfer(Exiv2::BasicIo &made) override;
    Exiv2::byte *mmap(bool isWriteable) override;
    int munmap() override;

private:
    int _original;
    int _copy;
    void *_changeable = nullptr; ///< the copy, mapped
};

} // namespace quorvin
