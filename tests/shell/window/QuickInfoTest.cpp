// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/info/QuickInfoPanel.h"
#include "shell/info/QuickInfoStack.h"
#include "shell/info/QuickInfoView.h"
#include "shell/info/StreamTable.h"
#include "shell/window/SampleWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QScrollArea>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::spinUntil;

namespace {

/// A content of that height.
QWidget *block(int height)
{
    auto *content = new QWidget;
    content->setFixedHeight(height);
    return content;
}

struct QuickInfoStackWindow : testing::Test {
    QScrollArea scroll;
    QuickInfoStack *stack = new QuickInfoStack;
    std::array<QuickInfoView *, 3> views{new QuickInfoView(u"A"_s, block(50)),
                                         new QuickInfoView(u"B"_s, block(80)),
                                         new QuickInfoView(u"C"_s, block(20))};

    QuickInfoStackWindow()
    {
        scroll.setWidgetResizable(true);
        scroll.setWidget(stack);
        for (QuickInfoView *view : views)
            stack->addPanel(view);
        scroll.resize(200, 400);
        scroll.show();
        QApplication::processEvents();
    }
    /// Each view begins where the one before ends.
    bool isStacked() const
    {
        int top = 0;
        for (const QuickInfoView *view : views) {
            if (view->y() != top || view->width() != stack->width())
                return false;
            top += view->height();
        }
        return stack->height() == std::max(top, scroll.viewport()->height());
    }
};

struct QuickInfoWindow : test::SampleWindow {
    QuickInfoPanel *open()
    {
        run(Command::toggleQuickInfo);
        auto *panel = window->findChild<QuickInfoPanel *>();
        EXPECT_TRUE(spinUntil([panel] { return panel->isActiveWindow(); }));
        return panel;
    }
    static QString name(const QuickInfoPanel *panel)
    {
        return panel->findChild<ElidedLabel *>()->wholeText();
    }
    static bool says(const QuickInfoPanel *panel, const QString &text)
    {
        return std::ranges::any_of(panel->findChildren<QLabel *>(), [&](const QLabel *label) {
            return label->isVisible() && label->text().contains(text);
        });
    }
    static QuickInfoView *section(const QuickInfoPanel *panel, qsizetype number)
    {
        return panel->findChildren<QuickInfoView *>().at(number);
    }
};

} // namespace

TEST_F(QuickInfoStackWindow, PlacesItsPanelsOneBelowAnother)
{
    EXPECT_EQ(views[0]->height(), 28 + 50 + 10);
    EXPECT_TRUE(isStacked());
    views[0]->setContentHeight(500);
    QApplication::processEvents();
    EXPECT_TRUE(isStacked()) << "higher than what is seen of it";
    views[1]->setOpen(false);
    EXPECT_EQ(views[1]->height(), 28);
    views[1]->setContentHeight(300);
    EXPECT_EQ(views[1]->height(), 28) << "stays closed";
    views[1]->setOpen(true);
    QApplication::processEvents();
    EXPECT_TRUE(isStacked());
}

TEST_F(QuickInfoStackWindow, MovesWhatFollowsWhileAPanelOpensAndCloses)
{
    const int open = views[0]->height();
    auto *header = views[0]->findChild<QToolButton *>();
    for (const bool opens : {false, true}) {
        QTest::mouseClick(header, Qt::LeftButton);
        EXPECT_EQ(views[0]->isOpen(), opens) << "by what it is about to be";
        EXPECT_TRUE(spinUntil([&] {
            EXPECT_TRUE(isStacked());
            return !views[0]->isToggling();
        }));
        EXPECT_EQ(views[0]->height(), opens ? open : 28);
    }
    QTest::keyClick(header, Qt::Key_Left);
    QTest::keyClick(header, Qt::Key_Left);
    EXPECT_FALSE(views[0]->isOpen());
    QTest::keyClick(header, Qt::Key_Right);
    EXPECT_TRUE(spinUntil([&] { return views[0]->height() == open; })) << "in the middle of it";
    EXPECT_EQ(header->arrowType(), Qt::DownArrow);
}

TEST_F(QuickInfoWindow, FollowsTheFileAndLeavesTheArrowsToTheList)
{
    QuickInfoPanel *panel = open();
    EXPECT_EQ(name(panel), u"matroska.mkv"_s);
    EXPECT_TRUE(panel->findChild<StreamTable *>()->isVisible());
    EXPECT_TRUE(says(panel, u"Matroska"_s));
    QTest::keyClick(section(panel, 0)->findChild<QToolButton *>(), Qt::Key_Down);
    EXPECT_EQ(selected(), u"1"_s);
    EXPECT_EQ(name(panel), u"movie.mp4"_s);
    show({"none.wav", "tone.wav"});
    EXPECT_TRUE(spinUntil([&] { return says(panel, u"cannot be read"_s); }));
    EXPECT_FALSE(section(panel, 0)->isVisible()) << "nothing of the file before";
    QTest::keyClick(panel, Qt::Key_Down);
    EXPECT_EQ(name(panel), u"tone.wav"_s);
    EXPECT_GT(section(panel, 1)->height(), QuickInfoView::kHeaderHeight + QuickInfoView::kContentGap)
        << "with what was filled while it was hidden";
    run(Command::removeSelectedItems);
    run(Command::removeSelectedItems);
    EXPECT_TRUE(says(panel, u"No file"_s));
    EXPECT_TRUE(canRun(Command::toggleQuickInfo)) << "so that it can be closed";
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_FALSE(canRun(Command::toggleQuickInfo));
}

TEST_F(QuickInfoWindow, RemembersItsPartsAndItsPlace)
{
    QuickInfoPanel *panel = open();
    section(panel, 1)->toggleContent();
    panel->resize(300, 333);
    run(Command::toggleQuickInfo);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(settings.string(Setting::quickInfoClosed), u"streams"_s);
    LiveSettings again(settings);
    QuickInfoPanel other(again, window);
    other.show();
    EXPECT_FALSE(section(&other, 1)->isOpen());
    EXPECT_TRUE(section(&other, 2)->isOpen());
    EXPECT_EQ(other.size(), QSize(300, 333));
    again.set(Setting::quickViewFontSize, 24);
    EXPECT_GT(other.findChild<FactList *>()->font().pointSizeF(), 1.9 * QApplication::font().pointSizeF());
}

TEST_F(QuickInfoWindow, CopiesWhatIsSelectedInIt)
{
    QuickInfoPanel *panel = open();
    auto *streams = panel->findChild<StreamTable *>();
    streams->setFocus();
    streams->setCurrentIndex(streams->model()->index(0, 0));
    EXPECT_TRUE(spinUntil([&] { return canRun(Command::copy); }));
    run(Command::copy);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith(u"Video: AVC"_s));
}

} // namespace quorvin
