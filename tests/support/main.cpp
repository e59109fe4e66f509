// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "platform/UserLocale.h"
#include "process/RecordBytes.h"
#include "readers/RecordBuilder.h"
#include "shell/desktop/BackgroundRun.h"

#include <QApplication>
#include <QFile>
#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

/// For the test of a process that has set nothing up yet: writes the record of a file as bytes.
int readInThisProcess(const QString &path)
{
    using namespace quorvin;
    const auto result = makeInProcessRunner()->run({RecordRequest{path, {}}, {}});
    if (!result)
        return EXIT_FAILURE;
    QFile output;
    const QByteArray bytes = RecordEncoder().encode(std::get<QuorvinDataPtr>(*result)->contents());
    return output.open(stdout, QIODevice::WriteOnly) && output.write(bytes) == bytes.size() ? EXIT_SUCCESS
                                                                                            : EXIT_FAILURE;
}

} // namespace

int main(int argc, char **argv)
{
    // One time zone and one language, wherever the tests run.
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    // No display, no desktop, and no bus but those that tests make.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qunsetenv("QUORVIN_COLOR_SCHEME");
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--read") == 0)
        return readInThisProcess(QFile::decodeName(argv[2]));
    quorvin::useUtf8CharacterType();
    quorvin::RecordBuilder::setupLibraries();
    const int status = RUN_ALL_TESTS();
    // The libraries are taken down behind this; nothing may be inside them then.
    quorvin::BackgroundRunBase::awaitThreads(std::chrono::seconds(10));
    return status;
}
