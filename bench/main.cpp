// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserLocale.h"
#include "readers/RecordBuilder.h"

#include <QApplication>
#include <QLoggingCategory>

#include <benchmark/benchmark.h>

int main(int argc, char **argv)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    quorvin::useUtf8CharacterType();
    quorvin::RecordBuilder::setupLibraries();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
