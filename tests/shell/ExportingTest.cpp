// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportFormats.h"
#include "shell/exporting/ExportController.h"
#include "shell/exporting/ExportSheet.h"
#include "shell/session/LiveSettings.h"
#include "support/Events.h"
#include "support/TestFolder.h"
#include "support/TestRecords.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::TestFolder;

namespace {

ExportRun::Task task(const QString &path, bool toFolder, std::size_t count = 2)
{
    ExportRun::Task made;
    made.exporter.setFormat(u"json"_s);
    made.entries.assign(count, test::movieEntry());
    made.path = path;
    made.toFolder = toFolder;
    return made;
}

/// Runs it to its end and gives the failures.
QStringList outcome(ExportRun &run, ExportRun::Task task)
{
    QStringList failures{u"no end"_s};
    const QObject context;
    QObject::connect(&run, &ExportRun::ended, &context, [&](const QStringList &told) { failures = told; });
    run.start(std::move(task));
    test::spinUntil([&] { return !run.isUnderWay(); });
    return failures;
}

} // namespace

TEST(Exporting, WritesOneDocumentOrOneForEachFile)
{
    const TestFolder folder;
    ExportRun run;
    EXPECT_EQ(outcome(run, task(folder / u"all.json"_s, false)), QStringList());
    EXPECT_EQ(test::contentOf(folder / u"all.json"_s),
              test::exported(u"json"_s, {test::movieEntry(), test::movieEntry()}));
    EXPECT_EQ(outcome(run, task(folder.path(), true)), QStringList());
    EXPECT_EQ(folder.names().join(u'|'), u"all.json|one (1).json|one.json"_s);
}

TEST(Exporting, FailureNamesThePathAndTheReason)
{
    ExportRun run;
    const QString reason = outcome(run, task(u"/none/all.json"_s, false)).join(u'|');
    EXPECT_TRUE(reason.contains(u"No such file or directory"_s)) << reason.toStdString();
    EXPECT_EQ(outcome(run, task(u"/none"_s, true)).size(), 2) << "each document is tried";
}

TEST(Exporting, CancelLeavesNoHalfFile)
{
    const TestFolder folder;
    ExportRun run;
    int ends = 0;
    QObject::connect(&run, &ExportRun::ended, &run, [&] { ++ends; });
    run.start(task(folder / u"all.json"_s, false, 200'000));
    run.cancel();
    EXPECT_FALSE(run.isUnderWay());
    QApplication::processEvents();
    EXPECT_EQ(ends, 0);
    EXPECT_EQ(folder.names(), QStringList());
}

TEST(Exporting, SheetStartsFromTheLastExportAndKeepsTheNext)
{
    const TestFolder folder;
    Settings values(folder / u"settings.ini"_s);
    LiveSettings settings(values);
    settings.set(Setting::lastExportFormat, u"xml"_s);
    settings.set(Setting::lastExportType, 0);
    settings.set(Setting::lastExportWithoutFilePrivate, true);
    ExportSheet sheet(settings, 2, nullptr);
    EXPECT_EQ(sheet.format(), u"xml"_s);
    EXPECT_FALSE(sheet.compound());
    EXPECT_TRUE(sheet.skipFilePrivate());
    auto *format = sheet.findChild<QComboBox *>();
    ASSERT_TRUE(format);
    EXPECT_EQ(format->count(), exportFormats().size());
    format->setCurrentIndex(format->findData(u"csv"_s));
    sheet.accept();
    EXPECT_EQ(settings.string(Setting::lastExportFormat), u"csv"_s);
    EXPECT_EQ(settings.integer(Setting::lastExportType), 0);
}

TEST(Exporting, PlaceStartsWithThePresetName)
{
    const TestFolder folder;
    Settings values(folder / u"settings.ini"_s);
    LiveSettings settings(values);
    const auto preset = [&](std::vector<ExportEntry> entries) {
        QWidget window;
        ExportController controller(settings, &window);
        controller.menuExportNew(std::move(entries));
        window.findChild<ExportSheet *>()->accept();
        const auto *dialog = window.findChild<QFileDialog *>();
        return dialog ? dialog->selectedFiles().value(0).section(u'/', -1) : QString();
    };
    EXPECT_EQ(preset({test::movieEntry()}), u"one.txt"_s);
    EXPECT_EQ(preset({test::movieEntry(), test::movieEntry()}), u"Quorvin Export.txt"_s);

    QWidget window;
    ExportController(settings, &window).menuExportNew({});
    EXPECT_FALSE(window.findChild<QMessageBox *>()->informativeText().isEmpty());
}

} // namespace quorvin
