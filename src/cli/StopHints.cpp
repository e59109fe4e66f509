// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/StopHints.h"

#include "model/FailureKind.h"

namespace quorvin::cli {

namespace {

struct Kind {
    FailureKind kind;
    QLatin1String meaning;
};

constexpr std::array<Kind, StopHints::kKinds> kKindsOfStop{{
    {FailureKind::TookTooLong,
     QLatin1String("'took too long' is a file that was given up; --set readerCpuSeconds=N and "
                   "--set readerWallSeconds=N allow more")},
    {FailureKind::TooMuchMemory,
     QLatin1String(
         "'used too much memory' is a file that was given up; --set readerMemoryMiB=N allows more")},
    {FailureKind::ReaderCrashed,
     QLatin1String("'the reader crashed' is a file that its library can not bear; no setting changes that")},
}};

} // namespace

void StopHints::note(const QString &reason)
{
    for (std::size_t i = 0; i < kKinds; ++i)
        _noted[i] = _noted[i] || reason.startsWith(wordsOf(kKindsOfStop[i].kind));
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
