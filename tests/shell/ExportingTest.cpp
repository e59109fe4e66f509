// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportFormats.h"
#include "shell/exporting/ExportController.h"
#include "shell/exporting/ExportSheet.h"
#include "shell/session/LiveSettings.h"
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

ExportTask task(const QString &path, bool toFolder, std::size_t count = 2)
{
    ExportTask made;
    made.exporter.setFormat(u"json"_s);
    made.entries.assign(count, test::movieEntry());
    made.path = path;
    made.toFolder = toFolder;
    return made;
}

/// The failures of an export that is stopped once so many entries are written.
QStringList outcome(const ExportTask &task, int stopAfter = 1'000)
{
    std::stop_source source;
    const RunControl control(source.get_token(), [&](int done, int total) {
        EXPECT_EQ(total, int(task.entries.size()));
        if (done == stopAfter)
            source.request_stop();
    });
    return writeExport(task, control);
}

} // namespace

TEST(Exporting, WritesOneDocumentOrOneForEachFile)
{
    const TestFolder folder;
    EXPECT_EQ(outcome(task(folder / u"all.json"_s, false)), QStringList());
    EXPECT_EQ(test::contentOf(folder / u"all.json"_s),
              test::exported(u"json"_s, {test::movieEntry(), test::movieEntry()}));
    EXPECT_EQ(outcome(task(folder.path(), true)), QStringList());
    EXPECT_EQ(folder.names().join(u'|'), u"all.json|one (1).json|one.json"_s);
}

TEST(Exporting, FailureNamesThePathAndTheReason)
{
    const QString reason = outcome(task(u"/none/all.json"_s, false)).join(u'|');
    EXPECT_TRUE(reason.contains(u"No such file or directory"_s)) << reason.toStdString();
    EXPECT_EQ(outcome(task(u"/none"_s, true)).size(), 2) << "each document is tried";
}

TEST(Exporting, StoppedItLeavesCompleteDocumentsAndNoHalfOne)
{
    const TestFolder folder;
    EXPECT_EQ(outcome(task(folder / u"all.json"_s, false, 5), 2), QStringList());
    EXPECT_EQ(folder.names(), QStringList());
    EXPECT_EQ(outcome(task(folder / u"all.json"_s, false, 5), 5), QStringList());
    EXPECT_EQ(folder.names(), QStringList()) << "it was not wanted any more when it was complete";
    EXPECT_EQ(outcome(task(folder.path(), true, 5), 2), QStringList());
    EXPECT_EQ(folder.names().join(u'|'), u"one (1).json|one.json"_s);
    for (const QString &name : folder.names())
        EXPECT_EQ(test::contentOf(folder / name), test::exported(u"json"_s, {test::movieEntry()}));
}

TEST(Exporting, SheetStartsFromTheLastExportAndKeepsTheNext)
{
    const TestFolder folder;
    Settings values(folder / u"settings.ini"_s);
    LiveSettings settings(values);
    settings.set(Setting::lastExportFormat, u"xml"_s);
    settings.set(Setting::lastExportType, 0);
    settings.set(Setting::lastExportWithoutFilePrivate, true);
    ExportSheet sheet(settings, 2, 2, nullptr);
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
        const std::size_t count = entries.size();
        controller.menuExportNew(std::move(entries), count);
        window.findChild<ExportSheet *>()->accept();
        const auto *dialog = window.findChild<QFileDialog *>();
        return dialog ? dialog->selectedFiles().value(0).section(u'/', -1) : QString();
    };
    EXPECT_EQ(preset({test::movieEntry()}), u"one.txt"_s);
    EXPECT_EQ(preset({test::movieEntry(), test::movieEntry()}), u"Quorvin Export.txt"_s);

    QWidget window;
    ExportController(settings, &window).menuExportNew({}, 0);
    EXPECT_FALSE(window.findChild<QMessageBox *>()->informativeText().isEmpty());
}

} // namespace quorvin
