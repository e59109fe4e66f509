// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/SearchText.h"

#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <string>

namespace quorvin {

namespace {

/// Looks at all of it, which takes less time than to ask after each byte whether to go on.
bool isAscii(QByteArrayView text)
{
    constexpr unsigned kAscii = 0x7f;
    return std::accumulate(text.begin(), text.end(), 0U,
                           [](unsigned all, char c) { return all | static_cast<unsigned char>(c); })
        <= kAscii;
}

char foldedAscii(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Canonical caseless matching: what is equal by it has one form.
std::string foldedByIcu(QByteArrayView utf8)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto *const decompose = icu::Normalizer2::getNFDInstance(status);
    const auto *const compose = icu::Normalizer2::getNFCInstance(status);
    const icu::StringPiece piece(utf8.data(), static_cast<int32_t>(utf8.size()));
    icu::UnicodeString text = icu::UnicodeString::fromUTF8(piece);
    std::string folded;
    if (U_SUCCESS(status)) {
        text = decompose->normalize(text, status).foldCase();
        text = compose->normalize(decompose->normalize(text, status), status);
    }
    text.toUTF8String(folded);
    return folded;
}

/// The folded form of a text that is only looked at: the same room serves every call of a thread.
QByteArrayView foldedForNow(QByteArrayView utf8)
{
    thread_local QByteArray room;
    room.resize(0);
    appendFolded(room, utf8);
    return room;
}

} // namespace

void appendFolded(QByteArray &to, QByteArrayView utf8)
{
    if (!isAscii(utf8)) {
        to += QByteArrayView(foldedByIcu(utf8));
        return;
    }
    const qsizetype start = to.size();
    to.resize(start + utf8.size());
    std::ranges::transform(utf8, to.data() + start, foldedAscii);
}

QByteArray foldedUtf8(QByteArrayView utf8)
{
    QByteArray folded;
    appendFolded(folded, utf8);
    return folded;
}

QByteArray foldedUtf8(QStringView text)
{
    return foldedUtf8(QByteArrayView(text.toUtf8()));
}

bool SearchText::isInFolded(QByteArrayView folded) const
{
    return !isEmpty()
        && ::memmem(folded.data(), static_cast<std::size_t>(folded.size()), _folded.constData(),
                    static_cast<std::size_t>(_folded.size()))
        != nullptr;
}

bool SearchText::isIn(QByteArrayView utf8) const
{
    return !isEmpty() && isInFolded(foldedForNow(utf8));
}

bool SearchText::isIn(const QString &text) const
{
    // Most names are short and ASCII: these need no room but that on the stack.
    constexpr qsizetype kShort = 256;
    constexpr char16_t kEndOfAscii = 0x80;
    char16_t all = 0;
    for (const QChar unit : text)
        all |= unit.unicode();
    if (text.size() > kShort || all >= kEndOfAscii)
        return isIn(QByteArrayView(text.toUtf8()));
    std::array<char, kShort> bytes;
    std::ranges::transform(text, bytes.begin(), [](QChar unit) { return unit.toLatin1(); });
    return isIn(QByteArrayView(bytes.data(), text.size()));
}

bool SearchText::isAllOf(QByteArrayView utf8) const
{
    return foldedForNow(utf8) == QByteArrayView(_folded);
}

} // namespace quorvin
