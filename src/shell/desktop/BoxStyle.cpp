// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/BoxStyle.h"

#include <QPainter>
#include <QStyleOption>

namespace quorvin {

void BoxStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
    const bool hasRing
        = option->state.testFlag(State_HasFocus) && option->state.testFlag(State_KeyboardFocusChange);
    if (!isBox || hasRing)
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(option->palette.color(QPalette::PlaceholderText));
    const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox)
        painter->drawRect(outline);
    else
        painter->drawEllipse(outline);
    painter->restore();
}

} // namespace quorvin
