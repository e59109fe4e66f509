// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/Frames.h"
#include "process/RecordBytes.h"

#include <cstddef>
#include <cstdint>

// What a parent does with the bytes of a reader that has been taken over. Whatever they are, the parent stays
// whole.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace quorvin;
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    RecordDecoder decoder;
    // Twice, since a decoder remembers the terms of earlier records.
    for (int round = 0; round < 2; ++round) {
        if (auto record = decoder.decode(bytes)) {
            const QuorvinData made(std::move(*record));
            (void)made.stringForExportText();
            (void)made.stringForExportGeneral();
        }
    }
    (void)messageOf(bytes);
    (void)orderOf(bytes);
    return 0;
}
