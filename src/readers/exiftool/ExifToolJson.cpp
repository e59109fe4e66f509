// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/exiftool/ExifToolJson.h"

#include "SBJson5/SBJson5StreamParser.h"
#include "model/Log.h"

#include <QStringList>

#include <utility>
#include <variant>

namespace quorvin {

namespace {

constexpr quint64 kMostDepth = 512;

/// The object in the list that exiftool answers with; null when there is none.
const Json5Object *rootOf(const Json5Value &data)
{
    const auto *list = std::get_if<const Json5Array *>(&data);
    if (!list || (*list)->elements.empty())
        return nullptr;
    const auto *root = std::get_if<const Json5Object *>(&(*list)->elements.front());
    return root ? *root : nullptr;
}

/// The shortest digits that lead back to the number.
QString textOfReal(double number)
{
    constexpr int kLeastDigits = 15;
    constexpr int kMostDigits = 17;
    QString text;
    for (int digits = kLeastDigits; digits <= kMostDigits; ++digits) {
        text = QString::number(number, 'g', digits);
        if (text.toDouble() == number)
            break;
    }
    return text;
}

} // namespace

QString textOfJson(const Json5Value &value)
{
    struct Visitor {
        QString operator()(bool truth) const { return truth ? QStringLiteral("1") : QStringLiteral("0"); }
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(quint64 number) const { return QString::number(number); }
        QString operator()(double number) const { return textOfReal(number); }
        QString operator()(QByteArrayView text) const { return QString::fromUtf8(text); }
        QString operator()(const Json5Array *list) const
        {
            QStringList texts;
            for (const Json5Value &element : list->elements)
                texts.append(textOfJson(element));
            return texts.join(QLatin1String(", "));
        }
        QString operator()(const Json5Object *) const { return {}; }
        QString operator()(std::monostate) const { return {}; }
    };
    return std::visit(Visitor(), value);
}

Expected<Json5Root> rootOfOutput(const QByteArray &json)
{
    auto document = std::make_shared<Json5ParserHandler>();
    SBJson5StreamParser parser(*document, kMostDepth);
    const bool isWhole = parser.parse(json) == SBJson5ParserStatus::Complete;
    if (!isWhole)
        qCInfo(lcQuorvin).noquote() << "json parser found error:" << document->error();
    const Json5Object *root = isWhole ? rootOf(document->data()) : nullptr;
    if (!root)
        return failure(QStringLiteral("exiftool gave no proper answer"));
    return Json5Root{std::move(document), root};
}

} // namespace quorvin
