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
        for (int i = 0; i < 400; ++i)
            folder.write(QString::number(i) + u".flac"_s, tone);
    }
    /// The lines of progress of an export to another place.
    QStringList progress(const QString &option, int width, const QString &terminal = u"xterm"_s) const
    {
        const TestFolder target;
        const QString output = option == u"-d"_s ? target.path() : target / u"all.txt"_s;
        const auto outcome
            = runOnTerminal({u"export"_s, u"-j1"_s, option, output, folder.path()}, width, terminal);
        EXPECT_EQ(outcome.status, 0);
        return QString::fromUtf8(outcome.output).split(QLatin1String(kEraseLine), Qt::SkipEmptyParts);
    }
};

} // namespace

TEST_F(Terminal, ProgressOfOtherOutputsStaysInItsLine)
{
    for (const QString &option : {u"-o"_s, u"-d"_s}) {
        const QStringList lines = progress(option, 100);
        EXPECT_GE(lines.size(), 2);
        for (const QString &line : lines) {
            EXPECT_TRUE(line.startsWith(u'[') && line.contains(u" of 400, "_s)) << line.toStdString();
            EXPECT_LT(line.size(), 100);
        }
    }
    for (const QString &line : progress(u"-o"_s, 30))
        EXPECT_LT(line.size(), 30) << line.toStdString();
    EXPECT_EQ(progress(u"-o"_s, 100, u"dumb"_s), QStringList());
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
