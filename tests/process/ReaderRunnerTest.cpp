// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ReaderRunner.h"

#include "model/FailureKind.h"
#include "process/StopSignal.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <thread>

namespace quorvin {

namespace {

std::unique_ptr<JobRunner> faultyRunner()
{
    return makeReaderRunner(nullptr, test::faultyReaderProgram().toStdString());
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
constexpr int kCrashes = 300;
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

TEST(ReaderRunner, DigestsHaveNoDeadlineWhileTheyAdvance)
{
    const auto outcomeOf = [](const char *name, bool asksForDigests) {
        const auto runner = faultyRunner();
        QStringList told;
        runner->setWhenAdvanced([&](const DigestProgress &progress) {
            told.append(QStringLiteral("%1/%2").arg(progress.done).arg(progress.total));
        });
        const RecordOptions options{.computeFileHashes = asksForDigests};
        const JobLimits limits{.cpuSeconds = 1, .wallSeconds = 1};
        const auto result = runner->run({RecordRequest{u'/' + QLatin1String(name), options}, limits});
        return told.join(u' ') + (result ? QString() : u' ' + result.error().description);
    };
    const QString crashed = QStringLiteral(" stopped: the reader crashed");
    EXPECT_EQ(outcomeOf("digests", true), QStringLiteral("1/5 2/5 3/5 4/5 5/5"));
    EXPECT_EQ(outcomeOf("digests", false), crashed);
    EXPECT_EQ(outcomeOf("no way on", true), QStringLiteral("1/5") + crashed);
    EXPECT_EQ(outcomeOf("burns on", true), QStringLiteral("1/5 stopped: took too long"));
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

TEST(ReaderRunner, StopThatCameTooLateIsForgotten)
{
    StopSignal signal;
    const auto isReadable = [&] {
        pollfd end{signal.descriptor(), POLLIN, 0};
        return ::poll(&end, 1, 0) == 1;
    };
    for (int i = 0; i < 2; ++i) {
        signal.clear();
        EXPECT_FALSE(isReadable());
        signal.raise();
        EXPECT_TRUE(isReadable());
    }
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

TEST(ReaderRunner, ReaderThatDoesNotEndIsLeftBehind)
{
    auto runner = faultyRunner();
    const pid_t tracer = outcome(runner->run(named(QStringLiteral("traced")))).toInt();
    if (tracer <= 0)
        GTEST_SKIP() << "nothing may be traced here";
    runner.reset();
    // Killed, and there still, as its tracer has not let go of it.
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), 0);
    ::kill(tracer, SIGKILL);
    while (hasChildren())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

TEST(ReaderRunner, ReaderIsStartedAnewForWhatItMayNotRead)
{
    const auto roots = std::make_shared<RootSet>(QStringList{QStringLiteral("/a")});
    const auto runner = makeReaderRunner(roots, test::faultyReaderProgram().toStdString());
    const auto rootsFor = [&](const char *path) {
        return outcome(runner->run({ReportRequest{QLatin1String(path), {}}, {}}));
    };
    EXPECT_EQ(rootsFor("/a/b/roots"), QStringLiteral("/a"));
    // What is added meanwhile is for later readers.
    roots->add({QStringLiteral("/c")});
    EXPECT_EQ(rootsFor("/a/roots"), QStringLiteral("/a"));
    EXPECT_EQ(rootsFor("/c/roots"), QStringLiteral("/a /c"));
    EXPECT_EQ(rootsFor("/d/e/roots"), QStringLiteral("/a /c /d/e/roots"));
    EXPECT_EQ(rootsFor("/a/outside"), QStringLiteral("through /a/outside"));
    EXPECT_EQ(rootsFor("/a/always outside"), QStringLiteral("Permission denied"));
    EXPECT_EQ(rootsFor("/d/e/roots"), QStringLiteral("/a /c /d/e/roots"));
}

TEST(ReaderRunner, RecordBearsTheNameOfItsJob)
{
    const QString path = QStringLiteral("/says another name");
    const auto result = faultyRunner()->run({RecordRequest{path, {}}, {}});
    ASSERT_TRUE(result);
    EXPECT_EQ(std::get<QuorvinDataPtr>(*result)->filename(), path);
}

TEST(ReaderRunner, LogOfTheReaderComesIntoThisOne)
{
    static QStringList lines;
    lines.clear();
    QLoggingCategory::setFilterRules(QStringLiteral("quorvin.info=true\nquorvin.libraries=true"));
    const auto former
        = qInstallMessageHandler([](QtMsgType, const QMessageLogContext &context, const QString &text) {
              lines.append(QLatin1String(context.category) + u' ' + text);
          });
    const QString outcomeOfLogs = outcome(faultyRunner()->run(named(QStringLiteral("logs"))));
    qInstallMessageHandler(former);
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    EXPECT_EQ(outcomeOfLogs, QStringLiteral("logs"));
    EXPECT_TRUE(lines.contains(QStringLiteral("quorvin a phrase")));
    EXPECT_TRUE(lines.contains(QStringLiteral("quorvin.libraries a library")));
}

TEST(ReaderRunner, EnvironmentIsShort)
{
    qputenv("QUORVIN_TEST_SECRET", "x");
    const QString environment = outcome(faultyRunner()->run(named(QStringLiteral("environment"))));
    qunsetenv("QUORVIN_TEST_SECRET");
    EXPECT_TRUE(environment.contains(QStringLiteral("HOME=")));
    EXPECT_FALSE(environment.contains(QStringLiteral("SECRET")));
}

TEST(ReaderRunner, StreamsLeadNowhereWhateverThoseOfTheParentAre)
{
    for (unsigned closed = 0; closed < 8; ++closed) {
        const pid_t child = ::fork();
        if (child == 0) {
            for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                if ((closed >> static_cast<unsigned>(stream)) & 1U)
                    ::close(stream);
            }
            const QString streams = outcome(faultyRunner()->run(named(QStringLiteral("streams"))));
            ::_exit(streams == QStringLiteral("/dev/null /dev/null /dev/null ") ? 0 : 1);
        }
        int status = -1;
        ::waitpid(child, &status, 0);
        EXPECT_EQ(status, 0) << closed;
    }
}

TEST(ReaderRunner, ReaderThatCanNotStartIsTriedAFewTimes)
{
    const test::TestFolder folder;
    const QString starts = folder / QStringLiteral("starts");
    const QString program
        = folder.write(QStringLiteral("reader"), "#!/bin/sh\necho x >>" + starts.toUtf8() + "\n");
    QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner);
    const QString reason = QStringLiteral("the reader can not be started");
    const auto runner = makeReaderRunner(nullptr, program.toStdString());
    for (int i = 0; i < 5; ++i) {
        const auto result = runner->run(named(QStringLiteral("good")));
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error().description, reason);
        EXPECT_EQ(kindOf(result.error()), FailureKind::NoReader);
    }
    EXPECT_EQ(test::contentOf(starts), "x\nx\nx\n");
    EXPECT_EQ(outcome(makeReaderRunner(nullptr, "/no/such/reader")->run(named(QStringLiteral("good")))),
              reason);
}

} // namespace quorvin
