// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QStringList linesOfOutput(const test::Outcome &outcome)
{
    return QString::fromUtf8(outcome.output).split(u'\n', Qt::SkipEmptyParts);
}

} // namespace

TEST(ExtractCommand, WritesPicturesAndTellsTheirPaths)
{
    const test::TestFolder folder;
    const QStringList call{u"extract"_s, u"-d"_s, folder / u"out"_s};
    const QString none = folder / u"none.jpg"_s;
    const auto outcome = test::runCommandLine(
        call + QStringList{test::sample(u"photo.jpg"_s), none, test::sample(u"two-covers.mp3"_s)});
    EXPECT_EQ(outcome.status, 1) << outcome.errors.toStdString();
    EXPECT_TRUE(outcome.errors.contains("none.jpg")) << outcome.errors.toStdString();
    QStringList told = linesOfOutput(outcome);
    EXPECT_TRUE(told.contains(folder / u"out/photo #1.jpg"_s));
    for (QString &path : told)
        path = path.section(u'/', -1);
    told.sort();
    EXPECT_EQ(told, QDir(folder / u"out"_s).entryList(QDir::Files | QDir::Hidden, QDir::Name));

    const auto narrowed
        = test::runCommandLine(call
                               + QStringList{u"--filter"_s, u"fileType = 'Audio'"_s,
                                             test::sample(u"photo.jpg"_s), test::sample(u"tone.wav"_s)});
    EXPECT_EQ(narrowed.status, 0) << narrowed.errors.toStdString();
    EXPECT_TRUE(narrowed.output.isEmpty()) << narrowed.output.toStdString();
    EXPECT_EQ(test::runCommandLine({u"extract"_s, none}).status, 2);
}

} // namespace quorvin
