// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/JobRunner.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace quorvin {

namespace {

ReaderLimits faulty(int cpuSeconds = 20, int wallSeconds = 60, int memoryMiB = 2048)
{
    return {cpuSeconds, wallSeconds, memoryMiB, test::faultyReaderProgram().toStdString()};
}

Job named(const QString &name)
{
    return Job::rawReport(u'/' + name, QString());
}

/// What the job gave, or why it gave nothing.
QString outcome(const JobResult &result)
{
    return result ? result->report : result.error();
}

qsizetype openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd"))
        .entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System)
        .size();
}

bool hasChildren()
{
    return ::waitpid(-1, nullptr, WNOHANG) >= 0;
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kCrashes = 50;
constexpr bool kHasMemoryLimit = false;
#else
constexpr int kCrashes = 1000;
constexpr bool kHasMemoryLimit = true;
#endif

} // namespace

TEST(ReaderRunner, BadReaderCostsItsOwnFileOnly)
{
    const auto runner = makeReaderRunner(faulty());
    const QString crashed = QStringLiteral("stopped: the reader crashed");
    for (const char *fault : {"crash", "silent", "no bytes", "too long", "half", "no kind", "no record"}) {
        EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))), QStringLiteral("good"));
        EXPECT_EQ(outcome(runner->run(named(QLatin1String(fault)))), crashed) << fault;
    }
    EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))), QStringLiteral("good"));
}

TEST(ReaderRunner, LimitsEndTheJobWithTheirReason)
{
    const QString tooLong = QStringLiteral("stopped: took too long");
    EXPECT_EQ(outcome(makeReaderRunner(faulty(1, 60))->run(named(QStringLiteral("burn")))), tooLong);
    EXPECT_EQ(outcome(makeReaderRunner(faulty(20, 1))->run(named(QStringLiteral("hang")))), tooLong);
    EXPECT_EQ(outcome(makeReaderRunner(faulty(20, 1))->run(named(QStringLiteral("stalls")))), tooLong);
    EXPECT_EQ(outcome(makeReaderRunner(faulty(20, 1))->run(named(QStringLiteral("dribbles")))), tooLong);
    if (kHasMemoryLimit) {
        EXPECT_EQ(outcome(makeReaderRunner(faulty(20, 60, 512))->run(named(QStringLiteral("eat")))),
                  QStringLiteral("stopped: used too much memory"));
    }
}

TEST(ReaderRunner, NextJobTravelsWithTheLastResult)
{
    const auto runner = makeReaderRunner(faulty());
    QStringList results;
    const QStringList names = QStringLiteral("1,half,2,crash,no record,3,farewell,4,farewell,5").split(u',');
    runner->begin(named(names.first()));
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(runner->await({}));
        if (i + 1 < names.size())
            runner->begin(named(names[i + 1]));
        results.append(outcome(runner->take({})).left(7));
    }
    EXPECT_EQ(results.join(u'|'), QStringLiteral("1|stopped|2|stopped|stopped|3|farewel|4|farewel|5"));
}

TEST(ReaderRunner, ReaderThatDiesIdleCostsNothing)
{
    const auto runner = makeReaderRunner(faulty());
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(outcome(runner->run(named(QStringLiteral("farewell")))), QStringLiteral("farewell"));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

TEST(ReaderRunner, StopEndsAJobThatWouldNotEnd)
{
    const auto runner = makeReaderRunner(faulty());
    std::stop_source source;
    std::jthread stopper([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        source.request_stop();
    });
    runner->begin(named(QStringLiteral("hang")));
    EXPECT_FALSE(runner->await(source.get_token()));
    runner->begin(named(QStringLiteral("stalls")));
    EXPECT_TRUE(runner->await({}));
    EXPECT_EQ(outcome(runner->take(source.get_token())), QStringLiteral("stopped"));
    EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))), QStringLiteral("good"));
}

TEST(ReaderRunner, NothingIsLeftBehindByManyCrashes)
{
    const qsizetype before = openDescriptors();
    {
        const auto runner = makeReaderRunner(faulty());
        for (int i = 0; i < kCrashes; ++i) {
            for (int j = 0; j < 10; ++j)
                ASSERT_EQ(outcome(runner->run(named(QString::number(j)))), QString::number(j));
            ASSERT_FALSE(runner->run(named(QStringLiteral("crash"))));
        }
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_FALSE(hasChildren());
}

TEST(ReaderRunner, RealReaderReadsAsThisProcessDoes)
{
    const auto reader = makeReaderRunner({});
    const QDir samples(test::samplesFolder());
    for (const QString &name : samples.entryList(QDir::Files)) {
        const Job job = Job::record(samples.filePath(name), {});
        const JobResult there = reader->run(job);
        const JobResult here = makeInProcessRunner()->run(job);
        ASSERT_TRUE(there && here) << name.toStdString();
        EXPECT_TRUE(there->record->contents() == here->record->contents()) << name.toStdString();
    }
    EXPECT_EQ(outcome(reader->run(Job::record(QStringLiteral("/none"), {}))),
              QStringLiteral("No such file or directory"));
    const Job trace
        = Job::rawReport(samples.filePath(QStringLiteral("tone.wav")), QStringLiteral("mediainfo-trace"));
    const Job plain = Job::rawReport(trace.path, QStringLiteral("mediainfo"));
    const QString before = outcome(reader->run(plain));
    EXPECT_NE(outcome(reader->run(trace)), before);
    EXPECT_EQ(outcome(reader->run(plain)), before);
}

TEST(ReaderRunner, ReaderThatCanNotStartIsAReason)
{
    ReaderLimits limits;
    limits.program = "/no/such/reader";
    EXPECT_EQ(outcome(makeReaderRunner(limits)->run(named(QStringLiteral("good")))),
              QStringLiteral("the reader can not be started"));
}

} // namespace quorvin
