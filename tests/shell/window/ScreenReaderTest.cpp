// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/AccessibleTree.h"
#include "support/TestFolder.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// Where the first line with the text stands; -1 for nowhere.
qsizetype placeOf(const QStringList &lines, const QString &text)
{
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].contains(text))
            return i;
    }
    return -1;
}

QString all(const QStringList &lines)
{
    return lines.join(u'\n');
}

} // namespace

TEST(ScreenReader, MeetsTheWindowInTheOrderOfUse)
{
    const test::TestFolder folder;
    test::AccessibleTree window(
        {u"--set"_s, u"openTab=1"_s, test::sample(u"movie.mp4"_s), test::sample(u"tone.wav"_s)},
        folder.path());
    ASSERT_EQ(window.problem(), QString());
    const QStringList lines = window.linesWith(u"AVC, 320x180"_s);
    qsizetype last = -1;
    for (const QString &text :
         {u"menu bar"_s, u"tool bar"_s, u"page tab list \"Tabs\""_s, u"list \"Files\""_s,
          u"splitter \"Divider"_s, u"graphic \"Cover"_s, u"AVC, 320x180"_s}) {
        const qsizetype place = placeOf(lines, text);
        EXPECT_GT(place, last) << text.toStdString() << '\n' << all(lines).toStdString();
        last = place;
    }
    EXPECT_EQ(lines.filter(QRegularExpression(u"page tab \"[A-Z]"_s)).size(), 4);
    EXPECT_EQ(lines.filter(u"page tab \"General\" (Ctrl+1) [selected]"_s).size(), 1)
        << all(lines).toStdString();
    EXPECT_EQ(lines.filter(QRegularExpression(u"list item .*focused"_s)).size(), 1)
        << all(lines).toStdString();
    EXPECT_EQ(lines.filter(u"label \"MPEG-4"_s).size(), 2) << "kind and format, by what they are";
    EXPECT_TRUE(lines.filter(u"unknown "_s).isEmpty()) << "a role that tells nothing";
    for (const QString &line : lines) {
        const auto match = QRegularExpression(u"\"(.+)\" \\((.+)\\)"_s).match(line);
        // A label that is cut has its whole text as a tip.
        EXPECT_FALSE(match.hasMatch() && !line.contains(u"label "_s)
                     && match.captured(1) == match.captured(2))
            << "says the same twice: " << line.toStdString();
    }
}

TEST(ScreenReader, MeetsNoEmptyCell)
{
    const test::TestFolder folder;
    test::AccessibleTree window({u"--set"_s, u"openTab=2"_s, test::sample(u"tone.wav"_s)}, folder.path());
    ASSERT_EQ(window.problem(), QString());
    const QStringList lines = window.linesWith(u"tree item \"Container\""_s);
    EXPECT_GT(lines.filter(u"tree item"_s).size(), 10) << all(lines).toStdString();
    EXPECT_TRUE(lines.filter(u"tree item \"\""_s).isEmpty()) << all(lines).toStdString();
    EXPECT_FALSE(lines.filter(QRegularExpression(u"tree item \"\\d+ entries"_s)).isEmpty());
}

} // namespace quorvin
