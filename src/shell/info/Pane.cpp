// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/Pane.h"

namespace quorvin {

QFont RowLook::headlineFont() const
{
    constexpr double kScale = 1.25;
    QFont headline = font;
    headline.setPointSizeF(headline.pointSizeF() * kScale);
    headline.setWeight(QFont::DemiBold);
    return headline;
}

void Pane::showRecord(const QuorvinDataPtr &record)
{
    if (!record && !_record)
        return;
    _record = record;
    refill();
}

void Pane::refill()
{
    _isFilled = false;
    fillIfCurrent();
}

void Pane::setCurrent(bool isCurrent)
{
    _isCurrent = isCurrent;
    applyLookIfCurrent();
    fillIfCurrent();
}

void Pane::setLook(const RowLook &look)
{
    _newLook = look;
    applyLookIfCurrent();
}

void Pane::applyLookIfCurrent()
{
    if (!_isCurrent || !_newLook)
        return;
    applyLook(*_newLook);
    _newLook.reset();
}

void Pane::fillIfCurrent()
{
    if (!_isCurrent || std::exchange(_isFilled, true))
        return;
    fill(_record.get());
}

} // namespace quorvin
