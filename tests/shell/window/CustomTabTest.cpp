// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/ExifToolStart.h"
#include "shell/info/CustomPane.h"
#include "shell/info/InfoView.h"
#include "shell/info/ReportText.h"
#include "shell/session/LiveSettings.h"
#include "shell/window/MainView.h"
#include "shell/window/OneWindow.h"
#include "shell/window/StatusLine.h"
#include "support/Events.h"
#include "support/FakeExifTool.h"

#include <QClipboard>
#include <QComboBox>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

struct CustomTabWindow : testing::Test {
    test::TestFolder folder;
    Settings settings{folder / u"settings.ini"_s};
    LiveSettings live{settings};
    InfoView info{live};
    CustomPane *pane = info.findChild<CustomPane *>();

    void SetUp() override { info.setCurrentTab(Tab::Custom); }
    void choose(const QString &source) const
    {
        auto *chooser = pane->findChild<QComboBox *>();
        chooser->setCurrentIndex(chooser->findData(source));
    }
    bool shows(const QString &text) const
    {
        const auto *view = pane->findChild<QPlainTextEdit *>();
        return spinUntil([&] { return view->toPlainText().contains(text); });
    }
    bool says(const QString &state) const
    {
        return spinUntil([&] {
            const auto labels = pane->findChildren<QLabel *>();
            return std::ranges::any_of(labels, [&](const QLabel *label) { return label->text() == state; });
        });
    }
    QPushButton *button(const QString &text) const
    {
        for (QPushButton *one : pane->findChildren<QPushButton *>()) {
            if (one->isVisibleTo(pane) && one->text().remove(u'&') == text)
                return one;
        }
        return nullptr;
    }
};

using ExifToolNoticeWindow = test::OneWindow;

} // namespace

TEST_F(CustomTabWindow, ShowsTheReportThatIsChosen)
{
    info.showFailure(test::sample(u"movie.mp4"_s), failure(u"whatever"_s).value());
    EXPECT_TRUE(shows(exifToolProgram().empty() ? u"One alone:"_s : u"They agree:"_s))
        << "one that could not be read has reports, too";
    choose(u"mediainfo"_s);
    ASSERT_TRUE(shows(u"Overall bit rate"_s));
    const QString report = pane->findChild<ReportText *>()->text();
    button(u"Copy All"_s)->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), report);
    button(u"Save As…"_s)->click();
    const QString path = folder / u"report.txt"_s;
    Q_EMIT pane->findChild<QFileDialog *>()->fileSelected(path);
    EXPECT_TRUE(says(u"Saved “report.txt”."_s));
    EXPECT_EQ(test::contentOf(path), report.toUtf8());
    choose(u"xmp-arranged"_s);
    EXPECT_TRUE(says(u"It has nothing to say of this file."_s));
    EXPECT_FALSE(button(u"Save As…"_s)->isEnabled());
    choose(u"iso-metadata"_s);
    info.showFailure(test::sample(u"tone.wav"_s), failure(u"whatever"_s).value());
    EXPECT_TRUE(says(u"No report: Can not process the file"_s));
    info.clear();
    EXPECT_TRUE(says(u"The file is not read yet."_s));
}

TEST_F(CustomTabWindow, AReportThatTakesLongIsCancelled)
{
    const test::FakeExifTool fake;
    choose(u"exiftool"_s);
    info.showFailure(folder.write(u"hang"_s), failure(u"whatever"_s).value());
    ASSERT_TRUE(spinUntil([this] { return button(u"Cancel"_s) != nullptr; }));
    button(u"Cancel"_s)->click();
    EXPECT_TRUE(says(u"Cancelled."_s));
    info.showFailure(folder.write(u"other"_s), failure(u"whatever"_s).value());
    EXPECT_TRUE(shows(u"-G1"_s));
    EXPECT_FALSE(button(u"Cancel"_s));
}

TEST_F(CustomTabWindow, ALongTextIsShownAndSearchedByItsParts)
{
    ReportText report;
    const QString line = u"a line of words, "_s.repeated(10) + u'\n';
    const qsizetype lines = ReportText::kPartLength / line.size();
    const QString many = line.repeated(lines + 1);
    report.setText(many + u"Needle 1\n"_s + many + u"needle 2"_s);
    EXPECT_EQ(report.view().toPlainText(), line.repeated(lines)) << "cut where a line ends";
    int hits = -1;
    QObject::connect(&report, &ReportText::counted, [&hits](int count) { hits = count; });
    report.count(u"NEEDLE"_s);
    EXPECT_TRUE(spinUntil([&] { return hits == 2; }));
    const auto finds = [&](bool backwards, const QString &rest) {
        report.find(u"needle"_s, backwards);
        return spinUntil([&] {
            const QTextCursor cursor = report.view().textCursor();
            return cursor.hasSelection()
                && report.view().toPlainText().mid(cursor.selectionEnd(), rest.size()) == rest;
        });
    };
    EXPECT_TRUE(finds(false, u" 1"_s));
    EXPECT_TRUE(finds(false, u" 2"_s));
    EXPECT_TRUE(finds(false, u" 1"_s)) << "behind the last comes the first";
    EXPECT_TRUE(finds(true, u" 2"_s));
    report.setText(u"x"_s.repeated(ReportText::kPartLength + 1));
    EXPECT_EQ(report.view().toPlainText().size(), ReportText::kPartLength) << "a line without an end";
}

TEST_F(ExifToolNoticeWindow, SaysOnceThatItIsNotInstalled)
{
    const test::NoExifTool none;
    settings.set(Setting::videoUtility, u"exiftool"_s);
    StatusLine &line = window->myView().statusLine();
    const auto notice = [&line] { return line.saying().contains(u"exiftool is not installed"_s); };
    window->files().processFiles({test::sample(u"photo.jpg"_s), test::sample(u"movie.mp4"_s)});
    EXPECT_TRUE(spinUntil(notice));
    line.say({});
    window->files().processFiles({test::sample(u"tone.wav"_s), test::sample(u"tone.flac"_s)});
    EXPECT_TRUE(spinUntil([this] { return window->worker().countFailed() == 2; }));
    EXPECT_FALSE(notice());
}

} // namespace quorvin
