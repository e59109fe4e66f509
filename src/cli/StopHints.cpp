// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/StopHints.h"

namespace quorvin::cli {

namespace {

struct Kind {
    QLatin1String reason;
    QLatin1String meaning;
};

constexpr std::array<Kind, StopHints::kKinds> kKindsOfStop{{
    {QLatin1String("stopped: took too long"),
     QLatin1String("'took too long' is a file that was given up; --set readerCpuSeconds=N and "
                   "--set readerWallSeconds=N allow more")},
    {QLatin1String("stopped: used too much memory"),
     QLatin1String(
         "'used too much memory' is a file that was given up; --set readerMemoryMiB=N allows more")},
    {QLatin1String("stopped: the reader crashed"),
     QLatin1String("'the reader crashed' is a file that its library can not bear; no setting changes that")},
}};

} // namespace

void StopHints::note(const QString &reason)
{
    for (std::size_t i = 0; i < kKinds; ++i)
        _noted[i] = _noted[i] || reason.startsWith(kKindsOfStop[i].reason);
}

QStringList StopHints::lines() const
{
    QStringList lines;
    for (std::size_t i = 0; i < kKinds; ++i) {
        if (_noted[i])
            lines.append(kKindsOfStop[i].meaning);
    }
    return lines;
}

} // namespace quorvin::cli
