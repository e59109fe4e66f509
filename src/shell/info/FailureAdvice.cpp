// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/FailureAdvice.h"

#include "model/FailureKind.h"
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

FailureAdvice adviceOn(const Error &error, const JobLimits &limits)
{
    switch (kindOf(error)) {
    case FailureKind::TookTooLong:
        return {said("Reading it took too long and was stopped."),
                said("A file may take %1, and %2 of work. Both can be changed in the preferences.")
                    .arg(secondsOf(limits.wallSeconds), secondsOf(limits.cpuSeconds))};
    case FailureKind::TooMuchMemory:
        return {
            said("Reading it took too much memory and was stopped."),
            said("A file may take %1 MiB. This can be changed in the preferences.").arg(limits.memoryMiB)};
    case FailureKind::ReaderCrashed:
        return {said("A library that reads such files broke down on it. It may be damaged; no other file is "
                     "affected."),
                {}};
    case FailureKind::SetAside:
        return {said("It was set aside, since other files were slow as well."), {}};
    case FailureKind::NoReader:
        return {said("The part of Quorvin that reads files can not be started. Is it installed completely?"),
                {},
                false};
    case FailureKind::ExifToolBrokeDown:
        return {said("exiftool broke down on it. It may be damaged; no other file is affected."), {}};
    case FailureKind::NoExifTool:
        return {said("It was to be read with exiftool, which is not installed."),
                said("The preferences say what such files are read with.")};
    case FailureKind::Skipped:
        return {said("It was skipped before it was read."), {}};
    case FailureKind::NotUnderstood:
        return {said("No library knows what it is. It may be damaged, or no media file at all."), {}};
    case FailureKind::WrongDate:
    case FailureKind::Stopped:
    case FailureKind::Other:
        break;
    }
    return {sentenceOf(error.description), {}, false};
}

} // namespace quorvin
