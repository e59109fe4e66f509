// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/SBJson5Writer.h"

namespace quorvin {

namespace {

constexpr qsizetype kInitialCapacity = 8096;

} // namespace

SBJson5Writer SBJson5Writer::writerWithMaxDepth(quint64 maxDepth, bool humanReadable, bool sortKeys)
{
    return SBJson5Writer({maxDepth, humanReadable, sortKeys, {}});
}

SBJson5Writer SBJson5Writer::writerWithMaxDepth(quint64 maxDepth, bool humanReadable,
                                                SBJson5KeysComparator sortKeysComparator)
{
    return SBJson5Writer({maxDepth, humanReadable, true, std::move(sortKeysComparator)});
}

std::optional<QString> SBJson5Writer::stringWithObject(const QVariant &value)
{
    const auto data = dataWithObject(value);
    return data ? std::optional(QString::fromUtf8(*data)) : std::nullopt;
}

std::optional<QByteArray> SBJson5Writer::dataWithObject(const QVariant &value)
{
    _acc = {};
    _acc.reserve(kInitialCapacity);
    SBJson5StreamWriter stream(*this, _options);
    const bool written = stream.writeValue(value);
    _error = stream.error();
    return written ? std::optional(std::exchange(_acc, {})) : std::nullopt;
}

void SBJson5Writer::writer(const SBJson5StreamWriter &, QByteArrayView appendBytes)
{
    _acc.append(appendBytes);
}

} // namespace quorvin
