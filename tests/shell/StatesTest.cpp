// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/FailureKind.h"
#include "process/Job.h"
#include "shell/commands/CommandSet.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/info/FailureAdvice.h"
#include "shell/info/InfoView.h"
#include "shell/info/RawReportDialog.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/session/LiveSettings.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace quorvin {

namespace {

struct States : testing::Test {
    test::TestFolder folder;
    Settings settings{folder / QStringLiteral("settings.ini")};
    LiveSettings live{settings};
    InfoView info{live};

    /// All that can be read in the view.
    QString texts() const
    {
        QStringList texts;
        for (const QLabel *label : info.findChildren<QLabel *>()) {
            if (label->isVisibleTo(&info) && !label->text().isEmpty())
                texts.append(label->text());
        }
        return texts.join(u'|');
    }
    QPushButton *button(const QString &text) const
    {
        for (QPushButton *one : info.findChildren<QPushButton *>()) {
            if (one->isVisibleTo(&info) && one->text().remove(u'&') == text)
                return one;
        }
        return nullptr;
    }
};

} // namespace

TEST(FailureAdvice, TellsPeopleWhatHappenedAndWhichLimitWasMet)
{
    const JobLimits limits{7, 61, 333};
    const FailureAdvice slow = adviceOn(failure(FailureKind::TookTooLong).value(), limits);
    EXPECT_TRUE(slow.limit.contains(QStringLiteral("61 ")) && slow.limit.contains(QStringLiteral(" 7 ")));
    EXPECT_FALSE(slow.sentence.contains(QStringLiteral("stopped:")));
    const FailureAdvice large = adviceOn(failure(FailureKind::TooMuchMemory).value(), limits);
    EXPECT_TRUE(large.limit.contains(QStringLiteral("333 MiB")));
    EXPECT_EQ(adviceOn(failure(FailureKind::ReaderCrashed).value(), limits).limit, QString());

    // Of another domain it is no kind, and a broken reader may say any number.
    const int code = static_cast<int>(FailureKind::TookTooLong);
    const FailureAdvice other
        = adviceOn({kPosixErrorDomain, code, QStringLiteral("permission denied")}, limits);
    EXPECT_EQ(other.sentence, QStringLiteral("Permission denied."));
    EXPECT_FALSE(other.mayHaveReport) << "no library can read it either";
    for (const int wrong : {-1, 1000})
        EXPECT_EQ(adviceOn({kErrorDomain, wrong, QStringLiteral("x")}, limits).sentence,
                  QStringLiteral("X."));
    EXPECT_FALSE(adviceOn({}, limits).sentence.isEmpty());
}

TEST_F(States, AnEmptyWindowSaysWhatToDoAndWhatGoesOn)
{
    EXPECT_TRUE(texts().contains(QStringLiteral("Drop files")));
    int opened = 0;
    QObject::connect(&info, &InfoView::openWanted, [&opened] { ++opened; });
    ASSERT_TRUE(button(QStringLiteral("Open…")));
    button(QStringLiteral("Open…"))->click();
    EXPECT_EQ(opened, 1);

    info.showWalk(1204);
    EXPECT_TRUE(texts().contains(QStringLiteral("1,204"))) << texts().toStdString();
    EXPECT_FALSE(button(QStringLiteral("Open…")));
    int cancelled = 0;
    QObject::connect(&info, &InfoView::cancelWalkWanted, [&cancelled] { ++cancelled; });
    ASSERT_TRUE(button(QStringLiteral("Cancel")));
    button(QStringLiteral("Cancel"))->click();
    EXPECT_EQ(cancelled, 1);
    info.clear();
    EXPECT_FALSE(texts().contains(QStringLiteral("1,204"))) << "a window with files shows them";
    info.showNoFile();
    info.stopWalk();
    EXPECT_TRUE(texts().contains(QStringLiteral("Drop files")));
}

TEST_F(States, AFailedFileSaysWhichOneAndWhatCanBeDone)
{
    info.showFailure(QStringLiteral("/some/where/<b>bad.mkv"), failure(FailureKind::TookTooLong).value());
    const QString shown = texts();
    const auto names = info.findChildren<ElidedLabel *>();
    EXPECT_TRUE(std::ranges::any_of(
        names, [](const ElidedLabel *name) { return name->wholeText() == QStringLiteral("<b>bad.mkv"); }));
    EXPECT_TRUE(shown.contains(QString::number(settings.integer(Setting::readerWallSeconds))));
    int wanted = 0;
    QObject::connect(&info, &InfoView::retryWanted, [&wanted] { ++wanted; });
    QObject::connect(&info, &InfoView::preferencesWanted, [&wanted] { wanted += 10; });
    ASSERT_TRUE(button(QStringLiteral("Try Again")) && button(QStringLiteral("Preferences…")));
    button(QStringLiteral("Try Again"))->click();
    button(QStringLiteral("Preferences…"))->click();
    EXPECT_EQ(wanted, 11);

    info.showFailure(QStringLiteral("/some/x.mkv"), posixFailure(ENOENT).value());
    EXPECT_FALSE(button(QStringLiteral("Preferences…"))) << "no limit was met";
    EXPECT_FALSE(button(QStringLiteral("Raw Report…")));
}

TEST_F(States, ARawReportComesOrSaysWhyNot)
{
    auto *dialog = new RawReportDialog(settings, test::sample(QStringLiteral("tone.wav")), nullptr);
    const auto *text = dialog->findChild<QPlainTextEdit *>();
    EXPECT_TRUE(test::spinUntil([text] { return text->toPlainText().contains(QStringLiteral("PCM")); }));
    dialog->close();
    dialog = new RawReportDialog(settings, folder / QStringLiteral("none"), nullptr);
    const auto saysWhy = [dialog] {
        for (const QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->text().startsWith(QStringLiteral("No report: ")))
                return true;
        }
        return false;
    };
    EXPECT_TRUE(test::spinUntil(saysWhy));
    delete dialog;
}

TEST_F(States, TextsGrowAndShrinkAndStaySo)
{
    QWidget window;
    CommandSet commands(&window, &window);
    info.registerAt(commands);
    info.clear();
    info.setCurrentTab(Tab::Extended);
    const double usual = info.outline().font().pointSizeF();
    commands.run(Command::zoomIn);
    commands.run(Command::zoomIn);
    EXPECT_GT(info.outline().font().pointSizeF(), usual);
    EXPECT_EQ(Settings(folder / QStringLiteral("settings.ini")).integer(Setting::extFontSize), 14);
    commands.run(Command::actualSize);
    commands.run(Command::zoomOut);
    EXPECT_LT(info.outline().font().pointSizeF(), usual);
    for (int i = 0; i < 100; ++i)
        commands.run(Command::zoomIn);
    EXPECT_EQ(settings.integer(Setting::extFontSize), 40) << "the most that the setting takes";
    commands.run(Command::actualSize);
    EXPECT_DOUBLE_EQ(info.outline().font().pointSizeF(), usual);
}

TEST_F(States, SettingsReachEveryPane)
{
    info.clear();
    auto *facts = info.findChild<FactList *>();
    facts->setFacts({{QStringLiteral("Kind"), QStringLiteral("x")}});
    const auto alignment = [facts] { return facts->findChild<QLabel *>()->alignment(); };
    EXPECT_TRUE(alignment().testFlag(Qt::AlignTrailing));
    live.set(Setting::extParameterRightAlign, false);
    EXPECT_TRUE(alignment().testFlag(Qt::AlignLeading)) << "General goes by it too";
    live.set(Setting::extNamesWidth, 222);
    info.setCurrentTab(Tab::Extended);
    info.outline().resize(800, 300);
    info.outline().doItemsLayout();
    EXPECT_EQ(info.outline().columnWidth(ExtTreeModel::Name), 222);
    info.outline().header()->resizeSection(ExtTreeModel::Name, 187);
    EXPECT_EQ(settings.integer(Setting::extNamesWidth), 187) << "remembered";
}

} // namespace quorvin
