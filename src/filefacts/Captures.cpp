// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/Captures.h"

#include <QRegularExpression>

namespace quorvin::Utilities {

std::optional<QStringList> captureFirstComponentsMatchedByRegex(const QString &pattern, const QString &string)
{
    const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
    if (!expression.isValid())
        return std::nullopt;
    const QRegularExpressionMatch match = expression.match(string);
    QStringList components;
    for (int i = 0; match.hasMatch() && i <= expression.captureCount(); ++i)
        components.append(match.captured(i));
    return components;
}

} // namespace quorvin::Utilities
