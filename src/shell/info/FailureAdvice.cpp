// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/FailureAdvice.h"

#include "process/Job.h"

#include <QCoreApplication>

namespace quorvin {

namespace {

QString said(const char *text)
{
    return QCoreApplication::translate("FailureAdvice", text);
}

QString secondsOf(int count)
{
    return count == 1 ? said("1 second") : said("%1 seconds").arg(count);
}

QString sentenceOf(QString reason)
{
    if (reason.isEmpty())
        return said("The file could not be read.");
    reason[0] = reason[0].toUpper();
    return reason.endsWith(u'.') ? reason : reason + u'.';
}

} // namespace

FailureAdvice adviceOn(const QString &reason, const JobLimits &limits)
{
    if (reason == QLatin1String("stopped: took too long"))
        return {said("Reading it took too long and was stopped."),
                said("A file may take %1, and %2 of work. Both can be changed in the preferences.")
                    .arg(secondsOf(limits.wallSeconds), secondsOf(limits.cpuSeconds))};
    if (reason == QLatin1String("stopped: used too much memory"))
        return {
            said("Reading it took too much memory and was stopped."),
            said("A file may take %1 MiB. This can be changed in the preferences.").arg(limits.memoryMiB)};
    if (reason == QLatin1String("stopped: the reader crashed"))
        return {said("A library that reads such files broke down on it. It may be damaged; no other file is "
                     "affected."),
                {}};
    if (reason == QLatin1String("stopped: set aside as slow"))
        return {said("It was set aside, since other files were slow as well."), {}};
    if (reason == QLatin1String("the reader can not be started"))
        return {said("The part of Quorvin that reads files can not be started. Is it installed completely?"),
                {},
                false};
    if (reason == QLatin1String("stopped: exiftool broke down"))
        return {said("exiftool broke down on it. It may be damaged; no other file is affected."), {}};
    if (reason == QLatin1String("exiftool is not installed"))
        return {said("It was to be read with exiftool, which is not installed."),
                said("The preferences say what such files are read with.")};
    if (reason == QLatin1String("skipped"))
        return {said("It was skipped before it was read."), {}};
    if (reason == QLatin1String("Can not process the file"))
        return {said("No library knows what it is. It may be damaged, or no media file at all."), {}};
    return {sentenceOf(reason), {}, false};
}

} // namespace quorvin
