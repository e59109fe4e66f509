// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ColumnWidths.h"

#include <QStringList>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kMostPlaces = 10'000; ///< so many files can stand side by side

} // namespace

ColumnWidths::ColumnWidths(const QString &text)
{
    if (text.isEmpty())
        return;
    for (const QStringView part : QStringView(text).split(u',')) {
        if (_widths.size() == kMostPlaces)
            return;
        const int width = part.toInt();
        _widths.push_back(width >= kLeast && width <= kMost ? width : 0);
    }
}

int ColumnWidths::width(int place) const
{
    const auto index = static_cast<std::size_t>(place);
    return index < _widths.size() && _widths[index] > 0 ? _widths[index] : kUsual;
}

void ColumnWidths::setWidth(int place, int width)
{
    const auto index = static_cast<std::size_t>(place);
    if (_widths.size() <= index)
        _widths.resize(index + 1);
    _widths[index] = width == kUsual ? 0 : std::clamp(width, kLeast, kMost);
}

QString ColumnWidths::text() const
{
    QStringList parts;
    for (const int width : _widths)
        parts.append(QString::number(width));
    return parts.join(u',');
}

} // namespace quorvin
