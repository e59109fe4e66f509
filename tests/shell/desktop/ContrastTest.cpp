// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/Contrast.h"

#include "shell/desktop/BoxStyle.h"
#include "shell/desktop/ColorScheme.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

struct Pair {
    const char *name;
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

/// All that is written anywhere, on what it stands.
constexpr Pair kPairs[]{
    {"text of windows", QPalette::WindowText, QPalette::Window},
    {"text of windows on pages", QPalette::WindowText, QPalette::Base},
    {"values", QPalette::Text, QPalette::Base},
    {"values on windows", QPalette::Text, QPalette::Window},
    {"every second row", QPalette::Text, QPalette::AlternateBase},
    {"labels on pages", QPalette::PlaceholderText, QPalette::Base},
    {"labels on windows", QPalette::PlaceholderText, QPalette::Window},
    {"buttons", QPalette::ButtonText, QPalette::Button},
    {"tips", QPalette::ToolTipText, QPalette::ToolTipBase},
    {"selections", QPalette::HighlightedText, QPalette::Highlight},
    {"links on pages", QPalette::Link, QPalette::Base},
    {"links on windows", QPalette::Link, QPalette::Window},
    {"visited links", QPalette::LinkVisited, QPalette::Base},
};

void expectReadable(const QPalette &palette, const char *name)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const Pair &pair : kPairs) {
            EXPECT_GE(contrastOf(palette.color(group, pair.text), palette.color(group, pair.ground)),
                      kReadableContrast)
                << name << ", " << pair.name << ", group " << group;
        }
    }
}

} // namespace

TEST(Contrast, IsThatOfBlackOnWhite)
{
    EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrastOf(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    EXPECT_DOUBLE_EQ(contrastOf(Qt::red, Qt::red), 1);
}

TEST(Contrast, EveryTextOfBothPalettesIsReadable)
{
    expectReadable(ColorScheme::ownPalette(false), "light");
    expectReadable(ColorScheme::ownPalette(true), "dark");
}

TEST(Contrast, WhatIsDrawnBackStaysReadable)
{
    for (const bool dark : {false, true}) {
        const QPalette palette = ColorScheme::ownPalette(dark);
        const QColor text = palette.color(QPalette::Text);
        const QColor page = palette.color(QPalette::Base);
        const QColor highlight = palette.color(QPalette::Highlight);
        for (const QColor &ground : {page, between(page, highlight, 0.28)}) {
            EXPECT_EQ(drawnBack(text, ground, 0), text);
            double before = contrastOf(text, ground);
            for (int step = 1; step <= 10; ++step) {
                const double contrast = contrastOf(drawnBack(text, ground, step / 10.0).rgb(), ground);
                EXPECT_GE(contrast, kReadableContrast) << dark << ' ' << step;
                EXPECT_LT(contrast, before) << dark << ' ' << step << ": each step shows";
                before = contrast;
            }
            EXPECT_LT(before, kReadableContrast + 0.2) << "as far as it can be";
        }
    }
    EXPECT_EQ(drawnBack(Qt::gray, Qt::white, 1), QColor(Qt::gray)) << "no better to be had";
}

TEST(Contrast, EmptyBoxesStandOutFromDarkWindows)
{
    const BoxStyle style(QStringLiteral("fusion"));
    QStyleOptionButton option;
    option.rect = {0, 0, 14, 14};
    option.palette = ColorScheme::ownPalette(true);
    const QColor window = option.palette.color(QPalette::Window);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(window);
        QPainter painter(&image);
        style.drawPrimitive(element, &option, &painter, nullptr);
        painter.end();
        EXPECT_GE(contrastOf(image.pixelColor(0, 7), window), 3) << element;
    }
}

TEST(ColorScheme, GivesTheApplicationItsLookBack)
{
    const QPalette palette = QApplication::palette();
    const QString style = QApplication::style()->name();
    {
        ColorScheme scheme;
        scheme.follow(QStringLiteral("dark"));
        EXPECT_TRUE(ColorScheme::isDark(QApplication::palette()));
    }
    EXPECT_EQ(QApplication::palette(), palette);
    EXPECT_EQ(QApplication::style()->name(), style);
}

TEST(Contrast, WhatStandsBackIsReadableOnTheDesktopsPaletteToo)
{
    QPalette pale;
    pale.setColor(QPalette::Text, QColor(0x66, 0x66, 0x66));
    pale.setColor(QPalette::Base, Qt::white);
    pale.setColor(QPalette::Window, QColor(0xf0, 0xf0, 0xf0));
    const QPalette completed = withOwnRoles(pale);
    const QColor secondary = completed.color(QPalette::PlaceholderText);
    EXPECT_GE(contrastOf(secondary, Qt::white), kReadableContrast);
    EXPECT_GE(contrastOf(secondary, QColor(0xf0, 0xf0, 0xf0)), kReadableContrast);

    for (const bool dark : {false, true}) {
        const QPalette palette = ColorScheme::ownPalette(dark);
        EXPECT_GT(contrastOf(palette.color(QPalette::Text), palette.color(QPalette::Base)),
                  contrastOf(palette.color(QPalette::PlaceholderText), palette.color(QPalette::Base)));
        const QColor resting = palette.color(QPalette::Inactive, QPalette::Highlight);
        EXPECT_LT(resting.hslSaturationF(), 0.1) << "grey without the keyboard";
        EXPECT_GT(contrastOf(resting, palette.color(QPalette::Base)), 1.2) << "and yet to be seen";
    }
}

} // namespace quorvin
