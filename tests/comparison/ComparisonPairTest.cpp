// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonPair.h"

#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QSet>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::recordOf;

TEST(ComparisonPair, TellsParametersAndWholeSections)
{
    const auto first
        = recordOf({u"File/FileName=a.tif"_s, u"File/size=9"_s, u"EXIF/lens=x"_s, u"EXIF/iso=100"_s,
                    u"Audio#2/lang="_s, u"Audio#2/codec=aac"_s, u"GPS/lat=1"_s, u"GPS/lon=2"_s});
    const auto second = recordOf({u"File/FileName=a.jpg"_s, u"File/size=8"_s, u"EXIF/iso=100"_s,
                                  u"Audio#2/lang=en"_s, u"Audio#2/codec=aac"_s, u"XMP/rating=5"_s});
    const ComparisonPair there = comparedPair(*first, *second);
    EXPECT_EQ(there.lost, (QStringList{u"EXIF/LENS"_s, u"GPS"_s}));
    EXPECT_EQ(there.added, (QStringList{u"Audio #2/LANG"_s, u"XMP"_s}));
    EXPECT_EQ(there.changed, QStringList{u"File/SIZE"_s});
    const ComparisonPair back = comparedPair(*second, *first);
    EXPECT_EQ(back.changed, there.changed);
    EXPECT_EQ(QSet(back.lost.begin(), back.lost.end()), QSet(there.added.begin(), there.added.end()));
}

TEST(ComparisonPair, CopyIsEqualWhereverItLies)
{
    const auto at = [](const QString &place) {
        QStringList parameters{u"Video/FileName=kept"_s};
        for (const QString &key :
             {u"FileName"_s, u"FileLocation"_s, u"LocalizedCreationDate"_s, u"LocalizedModificationDate"_s})
            parameters.prepend(u"File/"_s + key + u'=' + place);
        return recordOf(parameters);
    };
    EXPECT_TRUE(comparedPair(*at(u"here"_s), *at(u"there"_s)).areEqual());
    EXPECT_EQ(comparedPair(*recordOf({u"Video/FileName=a"_s}), *recordOf({u"Video/FileName=b"_s})).changed,
              QStringList{u"Video/FILENAME"_s});
}

} // namespace quorvin
