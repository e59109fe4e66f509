// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/RawReports.h"

#include "intake/AnalysisOptions.h"
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
    const auto file = AtomicFile::create(path);
    if (!file)
        return tl::unexpected(file.error());
    QStringEncoder encode(QStringEncoder::Utf8);
    // In pieces: the bytes of a long text are not held beside it.
    while (!text.isEmpty() && !stop.stop_requested()) {
        const QStringView piece = text.first(std::min(kLettersAtOnce, text.size()));
        const QByteArray bytes = encode(piece);
        if ((*file)->device().write(bytes) != bytes.size())
            return failure((*file)->device().errorString());
        text = text.sliced(piece.size());
    }
    return stop.stop_requested() ? Expected<void>() : (*file)->commit();
}

} // namespace quorvin
