// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArrayView>

namespace quorvin {

class SBJson5StreamWriter;

/// Takes the bytes of a stream writer as they are written.
class SBJson5StreamWriterDelegate {
public:
    virtual ~SBJson5StreamWriterDelegate() = default;

    virtual void writer(const SBJson5StreamWriter &writer, QByteArrayView appendBytes) = 0;
};

} // namespace quorvin
