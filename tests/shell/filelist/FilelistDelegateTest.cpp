// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDelegate.h"

#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistRow.h"
#include "shell/filelist/FilelistTable.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHelpEvent>
#include <QStandardItemModel>
#include <QToolTip>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(FilelistDelegate, TheFolderGivesWayToTheName)
{
    const QFontMetrics metrics(QApplication::font());
    const auto fitting = [&](const QString &path, int width) {
        const auto [folder, name] = FilelistDelegate::fittingTexts(path, metrics, width);
        EXPECT_LE(metrics.horizontalAdvance(folder) + metrics.horizontalAdvance(name), width);
        return folder + u'|' + name;
    };
    const QString path = u"photo/2021/one.jpg"_s;
    const int whole = metrics.horizontalAdvance(path) + 2;
    EXPECT_EQ(fitting(path, whole), u"photo/2021/|one.jpg"_s);
    const QString shorter = fitting(path, whole - 2 * metrics.horizontalAdvance(u'p'));
    EXPECT_TRUE(shorter.startsWith(u"…"_s) && shorter.endsWith(u"2021/|one.jpg"_s)) << shorter.toStdString();
    EXPECT_EQ(fitting(path, metrics.horizontalAdvance(u"one.jpg"_s) + 1), u"|one.jpg"_s);
    const QString cut = fitting(path, metrics.horizontalAdvance(u"one.jpg"_s) - 1);
    EXPECT_TRUE(cut.startsWith(u"|on"_s) && cut.endsWith(u"pg"_s)) << cut.toStdString();
    EXPECT_EQ(fitting(u"a\nb"_s, 500), u"|a b"_s);
}

TEST(FilelistDelegate, ShowsHowAFileStandsAndWhereTheKeyboardIs)
{
    QStandardItemModel model(1, 1);
    QPixmap picture(24, 24);
    picture.fill(Qt::blue);
    const auto set = [&](int role, const QVariant &value) { model.setData(model.index(0, 0), value, role); };
    set(Qt::DecorationRole, QIcon(picture));
    QItemSelectionModel selection(&model);
    FilelistTable table(model, selection);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Active, QPalette::Highlight, Qt::red);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
    table.setPalette(palette);
    table.resize(200, 100);
    table.show();
    table.activateWindow();
    table.setFocus();
    QApplication::processEvents();
    const auto row = [&] { return table.viewport()->grab(table.visualRect(model.index(0, 0))).toImage(); };
    const auto centre = [&](FilelistRow::State state) {
        set(FilelistRow::StateRole, state);
        return row().pixelColor(21, row().height() / 2);
    };

    EXPECT_EQ(centre(FilelistRow::Ready), QColor(Qt::blue));
    const QColor waiting = centre(FilelistRow::Waiting);
    EXPECT_TRUE(waiting.blue() > waiting.red() && waiting != QColor(Qt::blue)) << "a dim picture";
    EXPECT_EQ(centre(FilelistRow::Reading), palette.color(QPalette::Base)) << "a spinner is hollow";

    set(FilelistRow::StateRole, FilelistRow::Ready);
    table.setLayoutDirection(Qt::RightToLeft);
    const QImage mirrored = row();
    EXPECT_EQ(mirrored.pixelColor(mirrored.width() - 22, mirrored.height() / 2), QColor(Qt::blue));

    selection.select(model.index(0, 0), QItemSelectionModel::Select);
    const QPoint corner(2, 2);
    EXPECT_EQ(row().pixelColor(corner), QColor(Qt::red));
    table.clearFocus();
    EXPECT_EQ(row().pixelColor(corner), QColor(Qt::gray));
}

TEST(FilelistDelegate, ALongPathOpensInATipThatFitsTheScreen)
{
    const QFont font = QToolTip::font();
    const QString path = u'/' + QString(3000, u'w') + u"\nit is bad"_s;
    const QStringList lines = plainTip(path, font, 500).split(u'\n');
    EXPECT_EQ(lines.join(QString()), QString(path).remove(u'\n'));
    EXPECT_EQ(lines.last(), u"it is bad"_s);
    for (const QString &line : lines)
        EXPECT_LE(QFontMetrics(font).horizontalAdvance(line), 500);

    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), path.left(3001), FilelistRow::PathRole);
    model.setData(model.index(0, 0), u"it is bad"_s, FilelistRow::ReasonRole);
    QItemSelectionModel selection(&model);
    FilelistTable table(model, selection);
    table.show();
    const QPoint over = table.visualRect(model.index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, over, table.viewport()->mapToGlobal(over));
    QApplication::sendEvent(table.viewport(), &help);
    EXPECT_TRUE(QToolTip::text().endsWith(u"\nit is bad"_s));
    QToolTip::hideText();
}

} // namespace quorvin
