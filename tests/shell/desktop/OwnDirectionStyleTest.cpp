// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OwnDirectionStyle.h"

#include "shell/desktop/ColorScheme.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScopeGuard>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QImage drawn(Qt::LayoutDirection direction, const std::function<void(QPainter &, const QRect &)> &draw)
{
    QImage image(300, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    draw(painter, image.rect());
    return image;
}

QImage textBy(const QStyle &style, Qt::LayoutDirection direction, const QString &text, int flags)
{
    return drawn(direction, [&](QPainter &painter, const QRect &rect) {
        style.drawItemText(&painter, rect, flags, QPalette(), true, text);
    });
}

QImage menuRowBy(const QStyle &style, const QString &text)
{
    return drawn(Qt::RightToLeft, [&](QPainter &painter, const QRect &rect) {
        QStyleOptionMenuItem row;
        row.rect = rect;
        row.direction = Qt::RightToLeft;
        row.text = text;
        row.menuItemType = QStyleOptionMenuItem::Normal;
        row.reservedShortcutWidth = 100;
        style.drawControl(QStyle::CE_MenuItem, &row, &painter);
    });
}

} // namespace

TEST(OwnDirectionStyle, KeepsTheEndOfATextWhereItsLettersEnd)
{
    const OwnDirectionStyle style(u"fusion"_s);
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(u"fusion"_s));
    for (const QString &text : {u"Open…"_s, u"4 of 7 differ."_s, u"פתח… (abc)"_s}) {
        const QImage right = textBy(style, Qt::RightToLeft, text, Qt::AlignLeft);
        const auto force = text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        EXPECT_EQ(right, textBy(*plain, Qt::RightToLeft, text, Qt::AlignRight | Qt::AlignAbsolute | force))
            << text.toStdString();
    }
    EXPECT_NE(menuRowBy(*plain, u"Open…\tCtrl+."_s), menuRowBy(style, u"Open…\tCtrl+."_s));
    EXPECT_EQ(menuRowBy(style, u"Open…\tCtrl+."_s),
              menuRowBy(*plain, u"\u200eOpen…\u200e\t\u200eCtrl+.\u200e"_s));
}

TEST(OwnDirectionStyle, IsThatOfALayoutFromTheRight)
{
    const QString before = QApplication::style()->name();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    {
        ColorScheme scheme;
        for (const QString &wish : {u"light"_s, u"dark"_s}) {
            scheme.follow(wish);
            EXPECT_TRUE(qobject_cast<OwnDirectionStyle *>(QApplication::style())) << wish.toStdString();
        }
    }
    EXPECT_EQ(QApplication::style()->name(), before);
}

} // namespace quorvin
