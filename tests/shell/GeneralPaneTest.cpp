// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/GeneralPane.h"

#include "shell/info/CoverView.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/FactList.h"
#include "shell/info/StreamTable.h"
#include "shell/outline/ExtTreeModel.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

QuorvinDataPtr recordWith(const QString &path, const std::vector<GeneralLine> &lines)
{
    RecordContents contents;
    contents.filename = path;
    contents.general.fileKind = QStringLiteral("a kind");
    contents.general.format = QStringLiteral("a format");
    contents.general.filesize = QStringLiteral("1 KB");
    contents.general.imageSize = QString();
    contents.general.lines = lines;
    return std::make_shared<const QuorvinData>(std::move(contents));
}

GeneralLine stream(const QString &key, const QString &name, quint64 index)
{
    return {key, name, {QStringLiteral("value of ") + name}, index};
}

struct General : testing::Test {
    GeneralPane pane;
    QuorvinDataPtr movie = recordWith(QStringLiteral("/films/") + QString(200, u'n') + QStringLiteral(".mov"),
                                      {stream(QStringLiteral("Video"), QStringLiteral("Video"), 0),
                                       stream(QStringLiteral("Audio"), QStringLiteral("Audio #2"), 1)});

    General()
    {
        pane.setCurrent(true);
        pane.showRecord(movie);
        pane.setLook({QApplication::font(), 20, 0, true, true});
        pane.resize(800, 600);
        pane.show();
        settle();
    }
    void settle() const
    {
        for (int i = 0; i < 5; ++i)
            QApplication::processEvents();
    }
    template <typename Part>
    Part *part() const
    {
        return pane.findChild<Part *>();
    }
    QLabel *valueOf(const QString &label) const
    {
        for (QLabel *one : part<FactList>()->findChildren<QLabel *>()) {
            if (one->text() == label && one->buddy())
                return qobject_cast<QLabel *>(one->buddy());
        }
        return nullptr;
    }
    /// Where the values of facts and of lines begin, from the left of the pane.
    std::pair<int, int> valueStarts() const
    {
        const auto *table = part<StreamTable>();
        return {valueOf(QStringLiteral("Kind"))->mapTo(&pane, QPoint()).x(),
                table->mapTo(&pane, QPoint()).x() + table->columnViewportPosition(ExtTreeModel::Value) + 6};
    }
};

} // namespace

TEST_F(General, ValuesBeginAtOnePlaceForAllFiles)
{
    for (const int width : {1200, 800, 600, 500, 350}) {
        pane.resize(width, 600);
        pane.showRecord(movie);
        settle();
        const auto [fact, line] = valueStarts();
        EXPECT_EQ(fact, line) << width;
        EXPECT_LE(line, width / 2) << width;
        pane.showRecord(
            recordWith(QStringLiteral("/a/b.jpg"), {stream(QStringLiteral("k"), QString(300, u'w'), 0)}));
        settle();
        EXPECT_EQ(valueStarts(), std::pair(fact, line)) << width << ": whatever the labels of a file";
    }
}

TEST_F(General, TheHeadlineIsCutInItsMiddleAndItsTipIsWhole)
{
    const QString name = movie->filename().mid(7);
    const auto *headline = part<ElidedLabel>();
    EXPECT_EQ(headline->toolTip().remove(u'\n'), name);
    EXPECT_LT(headline->text().size(), name.size());
    EXPECT_TRUE(headline->text().endsWith(QStringLiteral(".mov")));
    EXPECT_LE(pane.sizeHint().width(), 1000) << "a long name does not widen the pane";
}

TEST_F(General, OneSheetScrollsAsAWhole)
{
    std::vector<GeneralLine> lines;
    for (quint64 i = 0; i < 60; ++i)
        lines.push_back(stream(QStringLiteral("Audio"), QStringLiteral("Audio #%1").arg(i + 1), i));
    pane.showRecord(recordWith(QStringLiteral("/a/b.mkv"), lines));
    settle();
    auto *table = part<StreamTable>();
    EXPECT_GT(table->height(), pane.height());
    table->setFocus();
    table->setCurrentIndex(table->model()->index(59, 0));
    const QPoint last = table->viewport()->mapTo(&pane, table->visualRect(table->currentIndex()).center());
    EXPECT_TRUE(pane.rect().contains(last)) << "the sheet follows the keyboard";
}

TEST_F(General, OnlyADoubleClickOrReturnOpensALine)
{
    QStringList opened;
    QObject::connect(&pane, &GeneralPane::streamActivated,
                     [&](const QString &key, quint64 index) { opened.append(key + QString::number(index)); });
    auto *table = part<StreamTable>();
    const QPoint second = table->visualRect(table->model()->index(1, 0)).center();
    // As a desktop does on which a click activates.
    Q_EMIT table->activated(table->model()->index(0, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(opened, QStringList());
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, second);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(opened, QStringList({QStringLiteral("Audio1"), QStringLiteral("Audio1")}));
}

TEST_F(General, WhatACoverOffersIsReachedByKeys)
{
    int opened = 0;
    std::vector<CommandPlace> menus;
    QObject::connect(&pane, &GeneralPane::coverOpened, [&] { ++opened; });
    QObject::connect(&pane, &Pane::menuWanted, [&](CommandPlace place) { menus.push_back(place); });
    auto *cover = part<CoverView>();
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::white);
    cover->setCoverImage(picture);
    pane.activateWindow();
    part<StreamTable>()->setFocus();
    const QImage before = cover->grab().toImage();
    cover->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return cover->hasFocus(); }));
    EXPECT_NE(cover->grab().toImage(), before) << "one sees where the keys go";
    QTest::keyClick(cover, Qt::Key_Return);
    QTest::keyClick(cover, Qt::Key_Space);
    EXPECT_EQ(opened, 2);
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, cover->mapToGlobal(QPoint()));
    QApplication::sendEvent(cover, &menu);
    EXPECT_EQ(menus, std::vector{CommandPlace::CoverMenu});
    QTest::keyClick(cover, Qt::Key_Tab);
    EXPECT_TRUE(part<StreamTable>()->hasFocus()) << "in the order of the sheet";
    pane.clear();
    EXPECT_EQ(cover->focusPolicy(), Qt::NoFocus) << "nothing is shown";
}

TEST_F(General, CopiesLinesAndFactsWithAndWithoutTheirNames)
{
    auto *table = part<StreamTable>();
    pane.activateWindow();
    table->setFocus();
    ASSERT_TRUE(QTest::qWaitFor([&] { return table->hasFocus(); }));
    EXPECT_FALSE(pane.canCopy()) << "nothing is selected";
    table->selectAll();
    ASSERT_TRUE(pane.canCopy());
    pane.copy();
    EXPECT_EQ(QApplication::clipboard()->text(),
              QStringLiteral("Video: value of Video\nAudio #2: value of Audio #2"));
    pane.copyValues();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("value of Video\nvalue of Audio #2"));

    QLabel *size = valueOf(QStringLiteral("Size"));
    size->setFocus();
    ASSERT_TRUE(pane.canCopy());
    pane.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Size: 1 KB"));
    size->setSelection(0, 1);
    pane.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1"));
    pane.copyValues();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1 KB"));
}

TEST_F(General, ShowsItalicsWithoutAStreamToo)
{
    const StyledText aperture{.plain = QStringLiteral("\u0192/4"), .italicLength = 1};
    pane.showRecord(recordWith(QStringLiteral("/one.jpg"), {{{}, QStringLiteral("Aperture"), aperture}}));
    const QModelIndex value = part<StreamTable>()->model()->index(0, ExtTreeModel::Value);
    EXPECT_EQ(value.data().toString(), aperture.plain);
    EXPECT_EQ(value.data(ExtTreeModel::ItalicRole).toInt(), 1);
}

} // namespace quorvin
