// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/HtmlText.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(HtmlText, TablesAreSortedAndComplete)
{
    for (const auto table : {unicodeHtmlEscapes(), asciiHtmlEscapes()})
        EXPECT_TRUE(std::ranges::is_sorted(table, std::less_equal(), &HtmlEscape::unit));
    EXPECT_EQ(unicodeHtmlEscapes().size(), 33U);
    EXPECT_EQ(asciiHtmlEscapes().size(), 253U);
    for (const HtmlEscape &row : unicodeHtmlEscapes())
        EXPECT_EQ(stringByEncodingHTMLEntities(QChar(row.unit), false), row.entity);
}

TEST(HtmlText, EscapesByTable)
{
    EXPECT_EQ(stringByEncodingHTMLEntities(QString(), true), QString());
    EXPECT_EQ(stringByEncodingHTMLEntities(u"<a href=\"x\">R&D's</a>"_s, true),
              u"&lt;a href=&quot;x&quot;&gt;R&amp;D&apos;s&lt;/a&gt;"_s);
    const QString text = u"na\u00efve \u20ac5 \u2013 \u2603\t\u00a0\u200f\U0001f600"_s;
    EXPECT_EQ(stringByEncodingHTMLEntities(text, true),
              u"na\u00efve &euro;5 &ndash; \u2603\t\u00a0&rlm;\U0001f600"_s);
    EXPECT_EQ(stringByEncodingHTMLEntities(text, false),
              u"na&iuml;ve &euro;5 &ndash; &#9731;\t&nbsp;&rlm;&#55357;&#56832;"_s);
    EXPECT_EQ(stringByEncodingHTMLEntities(u"\u03b1\u2666\u007f"_s, false), u"&alpha;&diams;\u007f"_s);
}

TEST(HtmlText, LineBreaksOneByOne)
{
    for (const auto &[text, breaks] : {std::pair(u"\r\n"_s, 1),
                                       {u"\n\n"_s, 2},
                                       {u"\n\r\n"_s, 3},
                                       {u"\r\n\n"_s, 2},
                                       {u"\r\r\n"_s, 3},
                                       {u"\u0085\f\u2028\u2029\r"_s, 5},
                                       {QString(), 0},
                                       {u" \v\t"_s, 0}}) {
        const QString kept = breaks == 0 ? text : QString();
        EXPECT_EQ(stringWithNewLinesAsBRs(u"a"_s + text + u"b "_s),
                  u"a"_s + kept + u"<br />"_s.repeated(breaks) + u"b "_s);
    }
}

} // namespace quorvin
