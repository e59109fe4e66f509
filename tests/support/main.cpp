// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"

#include <QApplication>
#include <QLoggingCategory>

#include <gtest/gtest.h>

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
    quorvin::useUtf8CharacterType();
    quorvin::RecordBuilder::setupLibraries();
    return RUN_ALL_TESTS();
}
