// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/Contrast.h"

#include <algorithm>
#include <cmath>

namespace quorvin {

namespace {

constexpr int kSecondaryPercent = 68; ///< of the text's colour in what stands back
constexpr double kRestingSelectionShare = 0.16; ///< of it in a selection without the keyboard
constexpr int kPercentStep = 2;
constexpr int kFaintestSteps = 8; ///< of halving: a channel has so many bits

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor faintestReadable(const QColor &text, const QColor &ground)
{
    QColor faintest = text;
    double unreadable = 0;
    double readable = 1;
    for (int step = 0; step < kFaintestSteps; ++step) {
        const double middle = (unreadable + readable) / 2;
        // As it will be on the screen.
        const QColor color = between(ground, text, middle).rgb();
        if (contrastOf(color, ground) >= kReadableContrast) {
            faintest = color;
            readable = middle;
        } else {
            unreadable = middle;
        }
    }
    return faintest;
}

/// The text's colour, drawn back towards the page as far as it stays readable.
QColor secondaryColor(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor page = palette.color(QPalette::Active, QPalette::Base);
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    QColor color = text;
    for (int percent = kSecondaryPercent; percent < 100; percent += kPercentStep) {
        color = between(page, text, percent / 100.0);
        if (std::min(contrastOf(color, page), contrastOf(color, window)) >= kReadableContrast)
            break;
    }
    return color;
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const auto [darker, brighter] = std::minmax({luminance(one), luminance(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

QColor between(const QColor &from, const QColor &to, double share)
{
    const auto mix = [share](double a, double b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

QColor drawnBack(const QColor &text, const QColor &ground, double share)
{
    return between(text, faintestReadable(text, ground), share);
}

QPalette withOwnRoles(QPalette palette)
{
    palette.setColor(QPalette::All, QPalette::PlaceholderText, secondaryColor(palette));
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    palette.setColor(QPalette::Inactive, QPalette::Highlight,
                     between(palette.color(QPalette::Active, QPalette::Base), text, kRestingSelectionShare));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    return palette;
}

} // namespace quorvin
