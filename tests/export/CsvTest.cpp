// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/Csv.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin::Utilities {

using namespace Qt::StringLiterals;

TEST(Csv, FieldsAreQuotedAndGuarded)
{
    for (const auto &[field, quoted] :
         {std::pair(QString(), QString()),
          {u"1"_s, u"\"1\""_s},
          {u"say \"hi\""_s, u"\"say \"\"hi\"\"\""_s},
          {u"a,\r\n b"_s, u"\"a,\r\n b\""_s},
          {u"@home"_s, u"\"'@home\""_s},
          {u"-12.5 dB"_s, u"\"'-12.5 dB\""_s},
          {u"  =1+1"_s, u"\"'  =1+1\""_s},
          {u"\u00a0\u2028\u0085\u3000\v+1 "_s, u"\"'\u00a0\u2028\u0085\u3000\v+1 \""_s},
          {u" \t\n"_s, u"\" \t\n\""_s},
          {u"\"+1"_s, u"\"\"\"+1\""_s},
          {u"\u200b=1"_s, u"\"\u200b=1\""_s},
          {u"'=1"_s, u"\"'=1\""_s}})
        EXPECT_EQ(csvEscapeAndQuote(field), quoted);
    EXPECT_EQ(csvEscapeAndQuoteArray({QString(), QString()}), u","_s);
    EXPECT_EQ(csvEscapeAndQuoteArray({u"a"_s, QString(), u"-"_s}), u"\"a\",,\"'-\""_s);
    EXPECT_EQ(csvEscapeFromInjections(u"=1"_s), u" =1"_s);
    EXPECT_EQ(csvEscapeFromInjections(u" =1"_s), u" =1"_s);
}

} // namespace quorvin::Utilities
