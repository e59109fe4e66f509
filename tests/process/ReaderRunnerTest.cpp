// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderRunner.h"

#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace quorvin {

namespace {

std::unique_ptr<JobRunner> faultyRunner()
{
    return makeReaderRunner(test::faultyReaderProgram().toStdString());
}

Job named(const QString &name, const JobLimits &limits = {})
{
    return {ReportRequest{u'/' + name, QString()}, limits};
}

/// What the job gave, or why it gave nothing.
QString outcome(const JobResult &result)
{
    return result ? std::get<Report>(*result).text : result.error().description;
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
    const auto runner = faultyRunner();
    const QString crashed = QStringLiteral("stopped: the reader crashed");
    for (const char *fault :
         {"crash", "silent", "no bytes", "too long", "long failure", "half", "no kind", "no record",
          "another kind", "another job", "done with another", "left over", "greets again"}) {
        EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))), QStringLiteral("good"));
        EXPECT_EQ(outcome(runner->run(named(QLatin1String(fault)))), crashed) << fault;
    }
    EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))), QStringLiteral("good"));
}

TEST(ReaderRunner, LimitsEndTheJobWithTheirReason)
{
    const auto outcomeWithin = [](const JobLimits &limits, const char *name) {
        return outcome(faultyRunner()->run(named(QLatin1String(name), limits)));
    };
    const QString tooLong = QStringLiteral("stopped: took too long");
    EXPECT_EQ(outcomeWithin({.cpuSeconds = 1}, "burn"), tooLong);
    for (const char *name : {"hang", "stalls", "dribbles"})
        EXPECT_EQ(outcomeWithin({.wallSeconds = 1}, name), tooLong);
    if (kHasMemoryLimit) {
        EXPECT_EQ(outcomeWithin({.memoryMiB = 512}, "eat"), QStringLiteral("stopped: used too much memory"));
    }
}

TEST(ReaderRunner, NextJobTravelsWithTheLastResult)
{
    const auto runner = faultyRunner();
    QStringList results;
    const QStringList names
        = QStringLiteral("1,half,2,crash,no record,3,farewell,4,farewell,5,answers twice,6,7").split(u',');
    runner->begin(named(names.first()));
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_TRUE(runner->await({}));
        if (i + 1 < names.size())
            runner->begin(named(names[i + 1]));
        results.append(outcome(runner->take({})).left(7));
    }
    EXPECT_EQ(results.join(u'|'),
              QStringLiteral("1|stopped|2|stopped|stopped|3|farewel|4|farewel|5|answers|6|7"));
}

TEST(ReaderRunner, ReaderThatDiesIdleCostsNothing)
{
    const auto runner = faultyRunner();
    for (int i = 0; i < 20; ++i) {
        EXPECT_EQ(outcome(runner->run(named(QStringLiteral("farewell")))), QStringLiteral("farewell"));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

TEST(ReaderRunner, StopEndsAJobThatWouldNotEnd)
{
    const auto runner = faultyRunner();
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
        const auto runner = faultyRunner();
        for (int i = 0; i < kCrashes; ++i) {
            for (int j = 0; j < 10; ++j)
                ASSERT_EQ(outcome(runner->run(named(QString::number(j)))), QString::number(j));
            ASSERT_FALSE(runner->run(named(QStringLiteral("crash"))));
        }
    }
    EXPECT_EQ(openDescriptors(), before);
    EXPECT_FALSE(hasChildren());
}

TEST(ReaderRunner, ReaderThatCanNotStartIsAReason)
{
    const auto runner = makeReaderRunner("/no/such/reader");
    EXPECT_EQ(outcome(runner->run(named(QStringLiteral("good")))),
              QStringLiteral("the reader can not be started"));
}

} // namespace quorvin
