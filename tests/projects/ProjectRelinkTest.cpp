// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectRelink.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::TestFolder;

TEST(ProjectRelink, FindsByFoldersThenByNameAndSize)
{
    const TestFolder folder;
    for (const QString &name : {u"2020/one.mp4"_s, u"2021/one.mp4"_s, u"x/two.mp4"_s, u"y/two.mp4"_s,
                                u"x/deep/three.mp4"_s, u"a/four.mp4"_s, u"b/four.mp4"_s, u"z/five.mp4"_s})
        folder.write(name, "12345");
    folder.write(u"b/four.mp4"_s, "1234");
    const auto found = relinkedPaths({{.path = u"/old/2021/one.mp4"_s, .facts = {.size = 7}},
                                      {.path = u"/old/two.mp4"_s},
                                      {.path = u"/old/three.mp4"_s},
                                      {.path = u"/old/four.mp4"_s, .facts = {.size = 4}},
                                      {.path = u"/old/five.mp4"_s, .facts = {.size = 4}},
                                      {.path = u"/old/six.mp4"_s}},
                                     folder.path());
    const QHash<QString, QString> expected{
        {u"/old/2021/one.mp4"_s, folder / u"2021/one.mp4"_s}, // where it lies tells more than its size
        {u"/old/three.mp4"_s, folder / u"x/deep/three.mp4"_s},
        {u"/old/four.mp4"_s, folder / u"b/four.mp4"_s},
    };
    EXPECT_EQ(found, expected) << "two of one name, or one of another size, are nobody's";
    // A folder in common decides between two of one name.
    folder.write(u"s/x/same/seven.mp4"_s);
    folder.write(u"s/y/other/seven.mp4"_s);
    EXPECT_EQ(
        relinkedPaths({{.path = u"/old/other/seven.mp4"_s}}, folder.path()).value(u"/old/other/seven.mp4"_s),
        folder / u"s/y/other/seven.mp4"_s);
}

} // namespace quorvin
