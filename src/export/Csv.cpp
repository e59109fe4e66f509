// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/Csv.h"

#include <algorithm>

namespace quorvin::Utilities {

namespace {

bool startsFormula(QStringView text)
{
    return !text.isEmpty() && QStringView(u"+-=@").contains(text.front());
}

bool isBlank(QChar unit)
{
    switch (unit.category()) {
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return (unit >= u'\t' && unit <= u'\r') || unit == QChar(0x85);
    }
}

} // namespace

QString csvSeparator()
{
    return QStringLiteral(",");
}

QString csvEscapeAndQuote(const QString &field)
{
    if (field.isEmpty())
        return field;
    QString doubled = field;
    doubled.replace(u'"', QLatin1String("\"\""));
    return u'"' + csvEscapeFromInjectionsStrong(doubled) + u'"';
}

QString csvEscapeAndQuoteArray(const QStringList &fields)
{
    QStringList quoted;
    quoted.reserve(fields.size());
    std::ranges::transform(fields, std::back_inserter(quoted), csvEscapeAndQuote);
    return quoted.join(csvSeparator());
}

QString csvEscapeFromInjectionsStrong(const QString &text)
{
    const auto *start = std::find_if_not(text.begin(), text.end(), isBlank);
    return startsFormula({start, text.end()}) ? u'\'' + text : text;
}

QString csvEscapeFromInjections(const QString &text)
{
    return startsFormula(text) ? u' ' + text : text;
}

QByteArray UTF8BOMData()
{
    return QByteArrayLiteral("\xef\xbb\xbf");
}

} // namespace quorvin::Utilities
