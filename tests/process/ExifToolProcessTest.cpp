// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/oExifToolStayOpenProcess.h"
#include "support/FakeExifTool.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <thread>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// The answer, or why there is none.
QByteArray answerOf(oExifToolStayOpenProcess &process, const QList<QByteArray> &arguments)
{
    const auto answer = process.outputWithArguments(arguments);
    return answer ? *answer : "no: " + answer.error().description.toUtf8();
}

} // namespace

TEST(ExifToolProcess, HasNothingToRunButItsOwn)
{
    const test::FakeExifTool fake;
    qputenv("PERL5OPT", "-Mnone");
    const auto process = oExifToolStayOpenProcess::init({});
    qunsetenv("PERL5OPT");
    ASSERT_TRUE(process);
    EXPECT_EQ(answerOf(**process, {"/a", "-json"}), "-config  -stay_open True -@ -\n/a\n-json\n");
    const QByteArray environment = answerOf(**process, {"/environment"});
    EXPECT_TRUE(environment.startsWith("LC_ALL PATH")) << environment.constData();
    EXPECT_FALSE(environment.contains("HOME"));
}

TEST(ExifToolProcess, GoesOnAfterComplaintsAndFloods)
{
    const test::FakeExifTool fake;
    const auto process = oExifToolStayOpenProcess::init({});
    ASSERT_TRUE(process);
    EXPECT_EQ(answerOf(**process, {"/complain"}), "no: exiftool: Error: no such thing");
    EXPECT_EQ(answerOf(**process, {"/flood"}), QByteArray(1'000'000, 'o'));
    EXPECT_LT((*process)->errors().size(), 10'000);
    EXPECT_TRUE(answerOf(**process, {"/a"}).endsWith("/a\n"));
    EXPECT_TRUE((*process)->errors().isEmpty());
}

TEST(ExifToolProcess, TellsHowItWasLost)
{
    const test::FakeExifTool fake;
    struct Loss {
        const char *name;
        std::chrono::seconds patience;
        const char *reason;
    };
    for (const auto &[name, patience, reason] :
         {Loss{"/die", std::chrono::minutes(1), "no: stopped: exiftool broke down"},
          Loss{"/hang", std::chrono::seconds(1), "no: stopped: took too long"}}) {
        const auto process = oExifToolStayOpenProcess::init({.patience = patience});
        ASSERT_TRUE(process);
        EXPECT_EQ(answerOf(**process, {name}), reason);
        EXPECT_FALSE((*process)->isRunning());
        EXPECT_FALSE((*process)->outputWithArguments({"/a"}));
    }
    const test::NoExifTool none;
    const auto process = oExifToolStayOpenProcess::init({});
    ASSERT_FALSE(process);
    EXPECT_EQ(process.error().description, u"exiftool is not installed"_s);
}

TEST(ExifToolProcess, EndsWithTheThreadThatStartedIt)
{
    const test::FakeExifTool fake;
    Expected<std::unique_ptr<oExifToolStayOpenProcess>> process;
    std::jthread([&] {
        process = oExifToolStayOpenProcess::init({});
        EXPECT_TRUE(answerOf(**process, {"/a"}).endsWith("/a\n"));
    }).join();
    EXPECT_EQ(answerOf(**process, {"/a"}), "no: stopped: exiftool broke down");
}

TEST(ExifToolProcess, FindsFilesOfAnyName)
{
    if (exifToolProgram().empty())
        GTEST_SKIP() << "no exiftool";
    const test::TestFolder folder;
    const QByteArray sound = test::contentOf(test::sample(u"tone.wav"_s));
    const auto process = oExifToolStayOpenProcess::init({});
    ASSERT_TRUE(process);
    for (const char *name :
         {" a", "#a", "-a", "a ", "a\nb", "\n", "a\r", "a\\n\n", "a\"\n", "\xff\xfe", "a$b@c", "%d"}) {
        const QByteArray path = folder.path().toUtf8() + '/' + name + ".wav";
        const QByteArray bare = folder.path().toUtf8() + '/' + name;
        for (const QByteArray &each : {path, bare}) {
            ASSERT_EQ(::link((folder.write(u"tone"_s, sound)).toUtf8().constData(), each.constData()), 0)
                << name;
            EXPECT_EQ(answerOf(**process, {each, "-s3", "-SampleRate"}), "44100\n") << each.constData();
        }
    }
    EXPECT_EQ(answerOf(**process, {"/a\n$"}), "no: exiftool can not be told of a file of this name");
    EXPECT_TRUE(answerOf(**process, {"/none"}).startsWith("no: exiftool: Error: File not found"));
}

} // namespace quorvin
