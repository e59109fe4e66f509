// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QByteArray>

#include <optional>
#include <unordered_map>
#include <vector>

namespace quorvin {

class ByteWriter;

/// Records as bytes, on their way from one process to another. Keys and labels travel once: the first record
/// that has a term brings it along, later ones name it by its number. The values travel as the one text that
/// they are slices of, so that equal long ones cross once. So one encoder belongs to one decoder,
/// and records are decoded in the order in which they were encoded. One thread each.
class RecordEncoder {
public:
    QByteArray encode(const RecordContents &record);

private:
    void writeGroup(ByteWriter &out, const ParameterGroups &groups, const ParameterGroups::Group &group);
    quint32 numberOf(const TermPtr &term);

    std::unordered_map<const Term *, quint32> _numbers;
    std::vector<TermPtr> _terms; ///< keeps them alive, so that no other term gets the address of one
};

class RecordDecoder {
public:
    /// Absent for bytes that are no record; the decoder is of no use then. Trusts nothing: takes memory in
    /// proportion to the bytes at hand, whatever they claim.
    std::optional<RecordContents> decode(QByteArrayView bytes);

private:
    std::vector<TermPtr> _terms;
};

/// What the values of a record may come to: few bytes can stand for many values.
inline constexpr qint64 kMostLengthOfValues = 96 << 20;

/// A connection names at most so many terms; the encoder then starts anew, and tells the decoder.
inline constexpr std::size_t kMaxConnectionTerms = 50'000;

} // namespace quorvin
