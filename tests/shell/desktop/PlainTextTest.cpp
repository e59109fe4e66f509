// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PlainText.h"

#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QScopeGuard>
#include <QTextDocument>
#include <QWidget>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(PlainText, TipsShowWhatLooksLikeMarkup)
{
    EXPECT_EQ(plainTip(u"/f/a & b <1>.mov\nit is bad"_s), u"/f/a & b <1>.mov\nit is bad"_s);
    for (const QString &text : {u"/f/<img src=\"/dev/zero\">/a.mov"_s, u"<b>1</b>\n&amp; \"2\""_s}) {
        QTextDocument shown;
        shown.setHtml(plainTip(text));
        EXPECT_EQ(shown.toPlainText(), text);
    }
}

TEST(PlainText, MessagesShowTheirTextsAsTheyAre)
{
    QWidget window;
    QMessageBox *message
        = plainMessage(&window, u"t"_s, u"<i>1</i>"_s, u"/<img src=x>: no\n"_s, QMessageBox::Close);
    EXPECT_EQ(message->textFormat(), Qt::PlainText);
    EXPECT_EQ(message->text(), u"<i>1</i>"_s);
    EXPECT_FALSE(message->informativeText().contains(u"<img"_s));
    const std::unique_ptr<QLabel> label(plainLabel(u"<b>x"_s));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST(PlainText, LabelsBeginWhereLinesOfTheWindowDo)
{
    const auto back = qScopeGuard([] { QGuiApplication::setLayoutDirection(Qt::LeftToRight); });
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        QGuiApplication::setLayoutDirection(direction);
        for (const QString &text : {u"name"_s, u"שם"_s}) {
            const std::unique_ptr<QLabel> label(plainLabel(text));
            label->resize(400, 40);
            const QImage drawn = label->grab().toImage();
            const int half = drawn.width() / 2;
            const QImage left = drawn.copy(0, 0, half, drawn.height());
            const QImage right = drawn.copy(half, 0, half, drawn.height());
            const auto isBlank = [](const QImage &part) {
                QImage blank(part);
                blank.fill(part.pixelColor(part.width() / 2, 0));
                return blank == part;
            };
            EXPECT_EQ(isBlank(left), direction == Qt::RightToLeft) << text.toStdString();
            EXPECT_EQ(isBlank(right), direction == Qt::LeftToRight) << text.toStdString();
        }
    }
}

} // namespace quorvin
