// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"

#include <QCoreApplication>
#include <QLoggingCategory>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    // One time zone and one language, wherever the tests run.
    qputenv("TZ", "UTC");
    qputenv("LC_ALL", "C.UTF-8");
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    quorvin::useUtf8CharacterType();
    quorvin::RecordBuilder::setupLibraries();
    return RUN_ALL_TESTS();
}
