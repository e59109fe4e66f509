// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "process/ReaderRunner.h"
#include "support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>

namespace quorvin {

TEST(Jobs, ReaderReadsAsThisProcessDoes)
{
    const auto reader = makeReaderRunner();
    const auto inProcess = makeInProcessRunner();
    const QDir samples(test::samplesFolder());
    for (const QString &name : samples.entryList(QDir::Files)) {
        const Job job{RecordRequest{samples.filePath(name), {}}, {}};
        const JobResult there = reader->run(job);
        const JobResult here = inProcess->run(job);
        ASSERT_TRUE(there && here) << name.toStdString();
        EXPECT_TRUE(std::get<QuorvinDataPtr>(*there)->contents()
                    == std::get<QuorvinDataPtr>(*here)->contents())
            << name.toStdString();
    }
    const auto none = reader->run({RecordRequest{QStringLiteral("/none"), {}}, {}});
    ASSERT_FALSE(none);
    EXPECT_EQ(none.error().description, QStringLiteral("No such file or directory"));
}

TEST(Jobs, ReportLeavesTheNextOneAlone)
{
    const auto reader = makeReaderRunner();
    const auto report = [&](const char *source) {
        const QString path = test::sample(QStringLiteral("tone.wav"));
        return std::get<Report>(*reader->run({ReportRequest{path, QLatin1String(source)}, {}})).text;
    };
    const QString before = report("mediainfo");
    EXPECT_NE(report("mediainfo-trace"), before);
    EXPECT_EQ(report("mediainfo"), before);
}

} // namespace quorvin
