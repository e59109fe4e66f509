// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Durations.h"

#include <limits>

namespace quorvin::Utilities {

QString formatDurationUpToSeconds(qint64 milliseconds)
{
    if (milliseconds < 1)
        return {};
    const qint64 seconds = milliseconds / 1000 + (milliseconds % 1000 != 0);
    return QString::asprintf("%02lld:%02lld:%02lld", seconds / 3600, seconds % 3600 / 60, seconds % 60);
}

qint64 leadingInteger(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.mid(1);
    constexpr qint64 kMost = std::numeric_limits<qint64>::max();
    qint64 value = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            break;
        const qint64 number = digit.unicode() - u'0';
        if (value > (kMost - number) / 10)
            return negative ? std::numeric_limits<qint64>::min() : kMost;
        value = value * 10 + number;
    }
    return negative ? -value : value;
}

} // namespace quorvin::Utilities
