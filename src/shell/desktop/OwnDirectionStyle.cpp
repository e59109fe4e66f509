// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OwnDirectionStyle.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

namespace quorvin {

namespace {

constexpr int kForcedDirection = Qt::TextForceLeftToRight | Qt::TextForceRightToLeft;
constexpr QChar kTextIsolate(u'\u2068'); ///< up to the next one, in the direction of its first letter
constexpr QChar kTextIsolateEnd(u'\u2069');
constexpr QChar kBeforeKeys(u'\t');

/// The text of a menu's row and its keys apart.
QString isolatedParts(const QString &text)
{
    QStringList parts = text.split(kBeforeKeys);
    for (QString &part : parts)
        part = kTextIsolate + part + kTextIsolateEnd;
    return parts.join(kBeforeKeys);
}

} // namespace

void OwnDirectionStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette,
                                     bool enabled, const QString &text, QPalette::ColorRole role) const
{
    if ((flags & kForcedDirection) == 0) {
        // A text whose direction is given takes its sides by that.
        const Qt::Alignment given(flags & (Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask));
        flags |= static_cast<int>(text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
        flags = (flags & ~static_cast<int>(given))
            | static_cast<int>(visualAlignment(painter->layoutDirection(), given));
    }
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
}

void OwnDirectionStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    // Styles draw the text of these themselves.
    const auto *row
        = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem *>(option) : nullptr;
    if (!row || row->text.isEmpty())
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem isolated(*row);
    isolated.text = isolatedParts(row->text);
    QProxyStyle::drawControl(element, &isolated, painter, widget);
}

} // namespace quorvin
