// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/ValueDelegate.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QScopeGuard>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

QImage cellOf(const QString &text, Qt::LayoutDirection direction)
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem(text));
    model.item(0)->setTextAlignment(Qt::AlignRight | Qt::AlignAbsolute);
    QImage image(200, 30, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setLayoutDirection(direction);
    QStyleOptionViewItem option;
    option.rect = image.rect();
    option.direction = direction;
    QGuiApplication::setLayoutDirection(direction);
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    ValueDelegate().paint(&painter, option, model.index(0, 0));
    return image;
}

} // namespace

TEST(ValueDelegate, KeepsTheOrderOfAValueInAWindowFromTheRight)
{
    for (const char *text : {"25.8 KB (25767 bytes)", "<b>.jpg", "2021-03-04 05:06:07"}) {
        const QString value = QString::fromUtf8(text);
        EXPECT_EQ(cellOf(value, Qt::RightToLeft), cellOf(value, Qt::LeftToRight)) << text;
    }
}

} // namespace quorvin
