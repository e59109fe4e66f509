// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"

#include "platform/NativePath.h"
#include "readers/RecordBuilder.h"

#include <QDir>
#include <QFile>

namespace quorvin::bench {

const std::vector<QString> &mediaFiles()
{
    static const std::vector<QString> files = [] {
        QStringList paths;
        if (QFile list(qEnvironmentVariable("QUORVIN_BENCH_LIST")); list.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : list.readAll().split('\n'))
                paths.append(decodePath(line));
        } else {
            const QDir samples(QStringLiteral(QUORVIN_SAMPLES));
            for (const QString &name : samples.entryList(QDir::Files))
                paths.append(samples.filePath(name));
        }
        paths.removeIf([](const QString &path) { return !RecordBuilder({}).dataAboutFile(path); });
        return std::vector<QString>(paths.begin(), paths.end());
    }();
    return files;
}

} // namespace quorvin::bench
