// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "SBJson5/Json5ParserHandler.h"
#include "SBJson5/SBJson5Parser.h"
#include "SBJson5/SBJson5StreamParser.h"

#include <QByteArrayList>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <utility>

// Bytes as a whole and cut in two, where the first byte says, must come to the same.

namespace {

using namespace quorvin;

std::pair<SBJson5ParserStatus, QByteArrayList> outcomeOf(QByteArrayView first, QByteArrayView second)
{
    Json5ParserHandler handler;
    SBJson5StreamParser parser(handler, SBJson5Parser::kMostDepth);
    parser.parse(first);
    const SBJson5ParserStatus status = parser.parse(second);
    QByteArrayList told{handler.error().toUtf8()};
    for (const QByteArrayView key : handler.keysOrder())
        told.append(key.toByteArray());
    return {status, told};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QByteArrayView bytes(data + 1, static_cast<qsizetype>(size - 1));
    const qsizetype cut = bytes.size() * data[0] / 256;
    if (outcomeOf(bytes, {}) != outcomeOf(bytes.first(cut), bytes.sliced(cut)))
        std::abort();
    SBJson5Parser([](const QVariant &, bool &) {}, true, true, SBJson5Parser::kMostDepth,
                  [](const SBJson5Error &) {})
        .parse(bytes);
    return 0;
}
