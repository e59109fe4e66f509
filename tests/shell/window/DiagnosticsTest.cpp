// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/PropertyList.h"
#include "shell/info/QuickInfoPanel.h"
#include "shell/info/ReportText.h"
#include "shell/window/SampleWindow.h"
#include "shell/window/SidebarSplitView.h"
#include "shell/window/StatusLine.h"
#include "support/FakeExifTool.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMenu>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct DiagnosticsWindow : test::SampleWindow {
    StatusLine &status = window->myView().statusLine();
    QClipboard *clipboard = QGuiApplication::clipboard();

    /// Once the command has had its say.
    QString copied(Command command) const
    {
        status.say({});
        run(command);
        EXPECT_TRUE(spinUntil([this] { return !status.saying().isEmpty(); })) << int(command);
        return clipboard->text();
    }
};

} // namespace

TEST_F(DiagnosticsWindow, ItsMenuIsThereForThoseWhoWantIt)
{
    const QAction *menu = window->commands().menu(CommandMenu::Diagnostics)->menuAction();
    EXPECT_FALSE(menu->isVisible());
    application.session().settings.set(Setting::enableDebug, true);
    EXPECT_TRUE(menu->isVisible());
    EXPECT_TRUE(
        application.openEmptyWindow()->commands().menu(CommandMenu::Diagnostics)->menuAction()->isVisible());
}

TEST_F(DiagnosticsWindow, CopiesWhatTheLibrariesSay)
{
    show({"photo.jpg"});
    EXPECT_TRUE(copied(Command::copyMediaInfoOutput).contains(u"Complete name"_s));
    EXPECT_TRUE(copied(Command::copyMediaInfoTraceOutput).contains(u", finished"_s));
    EXPECT_TRUE(copied(Command::copyExiv2Output).startsWith(u"Exif\n===="_s));
    EXPECT_TRUE(copied(Command::copyExiv2Structure).contains(u"JPEG"_s));
    EXPECT_TRUE(copied(Command::copyExiv2Xmp).contains(u"?>\n<x:xmpmeta"_s));
    EXPECT_TRUE(copied(Command::copyImageio).startsWith(test::sample(u"photo.jpg"_s) + u' '));
    show({"movie.mp4"});
    EXPECT_TRUE(copied(Command::mp4Metadata).startsWith(u"Metadata Formats:\n\n"_s));
    EXPECT_TRUE(copied(Command::copyLibParametersCSV).startsWith(u"\nGeneral\n----"_s));
}

TEST_F(DiagnosticsWindow, SaysSoWhereThereIsNothing)
{
    const test::NoExifTool none;
    show({"tone.wav"});
    const QString path = test::sample(u"tone.wav"_s);
    EXPECT_EQ(copied(Command::copyExiv2Output), u"no output"_s);
    EXPECT_EQ(copied(Command::copyExiftoolOutput), u"<No output>"_s);
    EXPECT_EQ(copied(Command::copyImageio), path + u" <No output>"_s);
    EXPECT_EQ(copied(Command::mp4Metadata), u"<No output>"_s);
    EXPECT_TRUE(status.saying().contains(u"No report on “tone.wav”"_s));
    clipboard->setText(u"kept"_s);
    window->files().removeSelectedItems();
    EXPECT_FALSE(canRun(Command::copyMediaInfoOutput));
    run(Command::copyMediaInfoOutput);
    EXPECT_EQ(clipboard->text(), u"kept"_s);
    run(Command::testExiv2);
    Q_EMIT window->findChild<QFileDialog *>()->fileSelected(test::sample(u"photo.jpg"_s));
    EXPECT_TRUE(spinUntil([this] { return clipboard->text().contains(u"Exif.Image.Make"_s); }))
        << "a file that is not in the list";
}

TEST_F(DiagnosticsWindow, ShowsReportsOnTheCustomTab)
{
    const auto *report = window->findChild<ReportText *>();
    run(Command::customWithMediaInfoComplete);
    EXPECT_EQ(window->currentTab(), Tab::Custom);
    EXPECT_TRUE(spinUntil([&] { return report->text().contains(u"Complete name"_s); }));
    show({"photo.jpg"});
    run(Command::customWithRawXmp);
    EXPECT_TRUE(spinUntil([&] { return report->text().startsWith(u"<?xpacket"_s); }));
}

TEST_F(DiagnosticsWindow, SavesTheParametersAsAPropertyList)
{
    run(Command::copyLibParametersCSV2);
    const QString path = folder / u"MediaInfoParameters.plist"_s;
    Q_EMIT window->findChild<QFileDialog *>()->fileSelected(path);
    ASSERT_TRUE(spinUntil([this] { return status.saying().contains(u"MediaInfoParameters.plist"_s); }));
    const auto list = parsePropertyList(test::contentOf(path));
    ASSERT_TRUE(list);
    const QVariantMap kinds = list->toMap();
    EXPECT_EQ(kinds.size(), 7);
    EXPECT_TRUE(kinds.value(u"Subtitles"_s).toStringList().contains(u"StreamSize/String/SI"_s));
}

TEST_F(DiagnosticsWindow, TurnsTheWindowRoundAndOpensQuickInfo)
{
    const SidebarSplitView &sidebar = window->myView().sidebar();
    run(Command::exchangeViews);
    EXPECT_EQ(sidebar.sidebarPosition(), 1);
    run(Command::exchangeViews);
    EXPECT_EQ(sidebar.sidebarPosition(), 0);
    for (int i = 0; i < 2; ++i) {
        run(Command::testQuickInfo);
        const auto *panel = window->findChild<QuickInfoPanel *>();
        ASSERT_TRUE(panel);
        EXPECT_TRUE(panel->isVisible()) << "also the second time";
    }
}

} // namespace quorvin
