// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/TextExcerpt.h"

#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace quorvin {

namespace {

constexpr qsizetype kLongestCharacter = 4; ///< bytes of UTF-8

std::optional<QString> decodedUtf8(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

QString decoded(const QByteArray &bytes, bool isWhole)
{
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return QStringDecoder(*marked).decode(bytes);
    const qsizetype mostCut = isWhole ? 0 : std::min(kLongestCharacter - 1, bytes.size());
    for (qsizetype cut = 0; cut <= mostCut; ++cut) {
        if (auto text = decodedUtf8(QByteArrayView(bytes).chopped(cut)))
            return *std::move(text);
    }
    return QString::fromLatin1(bytes);
}

bool hasNoShape(QChar character)
{
    return character.category() == QChar::Other_Control && character != u'\t';
}

} // namespace

QString textOf(const QByteArray &bytes, bool isWhole)
{
    const QString text = decoded(bytes, isWhole);
    QString shown;
    shown.reserve(text.size());
    qsizetype line = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool endsLine = character == u'\n' || character == u'\r';
        if (character == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n')
            continue;
        if (endsLine || (line >= kMostLineCharacters && !character.isLowSurrogate())) {
            shown += u'\n';
            line = 0;
        }
        if (endsLine)
            continue;
        shown += hasNoShape(character) ? QChar(QChar::ReplacementCharacter) : character;
        ++line;
    }
    return shown;
}

} // namespace quorvin
