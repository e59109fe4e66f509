// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/SBJson5StreamWriter.h"
#include "SBJson5/SBJson5StreamWriterDelegate.h"

#include <optional>

namespace quorvin {

/// Writes a value as one JSON document in memory. One thread an object.
class SBJson5Writer final : private SBJson5StreamWriterDelegate {
public:
    explicit SBJson5Writer(SBJson5WriterOptions options = {}) : _options(std::move(options)) { }
    static SBJson5Writer writerWithMaxDepth(quint64 maxDepth, bool humanReadable, bool sortKeys);
    static SBJson5Writer writerWithMaxDepth(quint64 maxDepth, bool humanReadable,
                                            SBJson5KeysComparator sortKeysComparator);

    /// As `SBJson5StreamWriter::writeValue`; absent on failure, then `error` tells why.
    std::optional<QString> stringWithObject(const QVariant &value);
    /// The same as UTF-8.
    std::optional<QByteArray> dataWithObject(const QVariant &value);

    /// Of the last call; "" when it went well.
    const QString &error() const { return _error; }

private:
    void writer(const SBJson5StreamWriter &writer, QByteArrayView appendBytes) override;

    SBJson5WriterOptions _options;
    QString _error;
    QByteArray _acc;
};

} // namespace quorvin
