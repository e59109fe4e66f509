// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/CommandLine.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::runOnTerminal;
using test::TestFolder;

namespace {

constexpr char kEraseLine[] = "\r\033[K";

/// Enough files for some lines of progress.
struct Terminal : testing::Test {
    TestFolder folder;

    Terminal()
    {
        const QByteArray tone = test::contentOf(test::sample(u"tone.flac"_s));
        for (int i = 0; i < 1000; ++i)
            folder.write(QString::number(i) + u".flac"_s, tone);
    }
    /// The lines of progress of an export to another place.
    QByteArrayList progress(int width, const QString &terminal = u"xterm"_s) const
    {
        const TestFolder target;
        QByteArrayList lines;
        for (const QString &option : {u"-o"_s, u"-d"_s}) {
            const QString output = option == u"-d"_s ? target.path() : target / u"all.txt"_s;
            const auto outcome
                = runOnTerminal({u"export"_s, u"-j1"_s, option, output, folder.path()}, width, terminal);
            EXPECT_EQ(outcome.status, 0);
            QString text = QString::fromUtf8(outcome.output);
            for (const QString &line : text.split(QLatin1String(kEraseLine), Qt::SkipEmptyParts))
                lines.append(line.toUtf8());
        }
        return lines;
    }
};

} // namespace

TEST_F(Terminal, ProgressOfOtherOutputsStaysInItsLine)
{
    const QByteArrayList wide = progress(100);
    ASSERT_GE(wide.size(), 2);
    for (const QByteArray &line : wide) {
        EXPECT_TRUE(line.startsWith('[') && line.contains(" of 1000, ")) << line.toStdString();
        EXPECT_LT(line.size(), 100);
    }
    for (const QByteArray &line : progress(30))
        EXPECT_LT(line.size(), 30) << line.toStdString();
    EXPECT_EQ(progress(100, u"dumb"_s), QByteArrayList());
}

TEST(TerminalText, NothingInANameIsObeyed)
{
    const TestFolder folder;
    // An escape sequence, one of the eight-bit kind, a carriage return and a bell, among harmless letters.
    const QString name = u"a\u001b[31mb\u009b2Jc\rd\u0007\u00e9\u2019.wav"_s;
    folder.write(name, test::contentOf(test::sample(u"tone.wav"_s)));
    const QByteArray shown = "a\\033[31mb\\2332Jc\\015d\\007\u00e9\u2019.wav";
    for (const QStringList &call :
         {QStringList{u"list"_s}, {u"general"_s}, {u"export"_s}, {u"export"_s, u"-o"_s, u"/dev/stderr"_s}}) {
        const QByteArray output = runOnTerminal(call + QStringList{folder.path()}).output;
        EXPECT_TRUE(output.contains(shown)) << output.toStdString();
        EXPECT_FALSE(output.contains('\033') || output.contains("\u009b"));
    }
    EXPECT_FALSE(runOnTerminal({u"\u001b[2J"_s}).output.contains('\033'));
}

} // namespace quorvin
