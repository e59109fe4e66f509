// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDelegate.h"

#include "shell/filelist/FilelistRow.h"
#include "shell/filelist/FilelistTable.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStandardItemModel>

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

    selection.select(model.index(0, 0), QItemSelectionModel::Select);
    const QPoint corner(2, 2);
    EXPECT_EQ(row().pixelColor(corner), QColor(Qt::red));
    table.clearFocus();
    EXPECT_EQ(row().pixelColor(corner), QColor(Qt::gray));
}

} // namespace quorvin
