// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamWriterDelegate.h"
#include "export/OutputBuffer.h"

namespace quorvin {

/// Hands what a JSON writer makes to a buffer, which must outlive it.
class JsonBytes final : public SBJson5StreamWriterDelegate {
public:
    explicit JsonBytes(OutputBuffer &out) : _out(out) { }
    void writer(const SBJson5StreamWriter &, QByteArrayView appendBytes) override { _out.put(appendBytes); }

private:
    OutputBuffer &_out;
};

} // namespace quorvin
