// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/RawReports.h"

#include "intake/AnalysisOptions.h"
#include "model/FailureKind.h"
#include "platform/AtomicFile.h"
#include "process/RootSet.h"
#include "readers/RawReport.h"
#include "shell/desktop/BackgroundRun.h"

#include <QStringEncoder>

#include <algorithm>
#include <memory>
#include <utility>

namespace quorvin {

namespace {

constexpr qsizetype kLettersAtOnce = 1 << 20;

} // namespace

std::function<Expected<QString>(const RunControl &)> reportWork(const Settings &settings, const QString &path,
                                                                const QString &source)
{
    if (!rawSourceTakesFiles(source))
        return [source](const RunControl &) { return rawReport(source, {}); };
    const AnalysisSetup setup = analysisSetupFrom(settings, std::make_shared<RootSet>(QStringList{path}));
    return [setup, job = setup.reportOf(path, source)](const RunControl &control) {
        return setup.makeRunner()->run(job, control.stop()).map([](JobAnswer answer) {
            return std::move(std::get<Report>(answer).text);
        });
    };
}

Expected<void> writeReport(QStringView text, const QString &path, const std::stop_token &stop)
{
    return writeWhole(path, [&](QFile &device) -> Expected<void> {
        QStringEncoder encode(QStringEncoder::Utf8);
        // In pieces: the bytes of a long text are not held beside it.
        for (QStringView rest = text; !rest.isEmpty() && !stop.stop_requested();) {
            const QStringView piece = rest.first(std::min(kLettersAtOnce, rest.size()));
            const QByteArray bytes = encode(piece);
            if (device.write(bytes) != bytes.size())
                return failure(device.errorString());
            rest = rest.sliced(piece.size());
        }
        return stop.stop_requested() ? Expected<void>(failure(FailureKind::Stopped)) : Expected<void>();
    });
}

} // namespace quorvin
