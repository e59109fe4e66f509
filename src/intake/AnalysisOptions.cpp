// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/AnalysisOptions.h"

#include "jobs/InProcessRunner.h"
#include "process/ReaderRunner.h"
#include "readers/RawReport.h"

namespace quorvin {

namespace {

JobLimits longer(JobLimits limits)
{
    constexpr int kTimesAsLong = 10;
    limits.cpuSeconds *= kTimesAsLong;
    limits.wallSeconds *= kTimesAsLong;
    return limits;
}

} // namespace

RecordOptions recordOptionsFrom(const Settings &settings)
{
    RecordOptions options;
    options.useSIUnits = settings.boolean(Setting::useSIUnits);
    options.useSlowThumbProcessing = settings.boolean(Setting::useSlowThumbProcessing);
    options.otherTracksInGeneral = settings.boolean(Setting::displayOtherTracksInGeneral);
    options.computeFileHashes = settings.boolean(Setting::computeFileHashes);
    options.skipExtAttributes = !settings.boolean(Setting::useSystemMetadata);
    options.useExiftoolForVideo = settings.string(Setting::videoUtility) == QLatin1String("exiftool");
    return options;
}

Job AnalysisSetup::reportOf(const QString &path, const QString &source) const
{
    JobLimits larger = longer(limits);
    larger.memoryMiB *= 2;
    return {ReportRequest{path, source, rawSourceUsesExifTool(source)}, larger};
}

Job AnalysisSetup::extractionOf(const QString &path, const QString &folder,
                                ExtractionRequest::Kind kind) const
{
    return {ExtractionRequest{path, folder, kind}, longer(limits)};
}

AnalysisSetup analysisSetupFrom(const Settings &settings, const std::shared_ptr<RootSet> &roots)
{
    AnalysisSetup setup;
    setup.options = recordOptionsFrom(settings);
    setup.logsDebug = settings.boolean(Setting::debugDataCacher);
    setup.limits = {settings.integer(Setting::readerCpuSeconds), settings.integer(Setting::readerWallSeconds),
                    settings.integer(Setting::readerMemoryMiB)};
    if (settings.boolean(Setting::readerProcesses))
        setup.makeRunner = [roots] { return makeReaderRunner(roots); };
    else
        setup.makeRunner = makeInProcessRunner;
    return setup;
}

} // namespace quorvin
