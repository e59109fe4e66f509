// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/HtmlText.h"

#include <algorithm>

namespace quorvin {

namespace {

bool isLineBreak(QChar unit)
{
    return QStringView(u"\n\r\u0085\f\u2028\u2029").contains(unit);
}

} // namespace

QString stringByEncodingHTMLEntities(const QString &text, bool isUnicode)
{
    return isUnicode ? gtm_stringByEscapingForHTML(text) : gtm_stringByEscapingForAsciiHTML(text);
}

QString gtm_stringByEscapingForHTML(const QString &text)
{
    return gtm_stringByEscapingHTMLUsingTable(text, unicodeHtmlEscapes(), false);
}

QString gtm_stringByEscapingForAsciiHTML(const QString &text)
{
    return gtm_stringByEscapingHTMLUsingTable(text, asciiHtmlEscapes(), true);
}

QString gtm_stringByEscapingHTMLUsingTable(const QString &text, std::span<const HtmlEscape> table,
                                           bool escapingUnicode)
{
    QString escaped;
    qsizetype runStart = 0;
    const auto flushRun = [&](qsizetype end) {
        escaped += QStringView(text).sliced(runStart, end - runStart);
        runStart = end + 1;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        const auto row = std::ranges::lower_bound(table, unit, {}, &HtmlEscape::unit);
        if (row != table.end() && row->unit == unit) {
            flushRun(i);
            escaped += row->entity;
        } else if (escapingUnicode && unit >= 128) {
            flushRun(i);
            escaped += QLatin1String("&#") + QString::number(unit) + u';';
        }
    }
    if (runStart == 0)
        return text;
    flushRun(text.size());
    return escaped;
}

QString stringWithNewLinesAsBRs(const QString &text)
{
    QString result;
    const auto *from = text.begin();
    while (from != text.end()) {
        const auto *end = std::find_if(from, text.end(), isLineBreak);
        result += QStringView(from, end);
        from = end;
        if (QStringView(from, text.end()).startsWith(u"\r\n")) {
            result += QLatin1String("<br />");
            from += 2;
            continue;
        }
        for (; from != text.end() && isLineBreak(*from); ++from)
            result += QLatin1String("<br />");
    }
    return result;
}

} // namespace quorvin
