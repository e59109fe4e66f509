// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherShared.h"

namespace quorvin {

Claim DataCacherShared::setFileIsInProcess(const FilelistItemPtr &file, const std::stop_token &stop)
{
    if (stop.stop_requested())
        return Claim::Cancelled;
    const std::lock_guard guard(safeLock);
    if (file->isDone())
        return Claim::Done;
    if (!filesInProcess.insert(file.get()).second) {
        ++filesWaitingForFinishProcessing[file];
        return Claim::InProcess;
    }
    return Claim::Free;
}

void DataCacherShared::setFileIsDone(const FilelistItemPtr &file)
{
    const std::lock_guard guard(safeLock);
    file->setIsDone(true);
    filesInProcess.erase(file.get());
}

int DataCacherShared::takeRepeats(const FilelistItemPtr &file)
{
    const auto waiting = filesWaitingForFinishProcessing.find(file);
    if (waiting == filesWaitingForFinishProcessing.end())
        return 0;
    const int repeats = waiting->second;
    if (--waiting->second == 0)
        filesWaitingForFinishProcessing.erase(waiting);
    return repeats;
}

void DataCacherShared::dataReady(const FilelistItemPtr &file, const Expected<QuorvinDataPtr> &result)
{
    int repeats = 0;
    {
        const std::lock_guard guard(safeLock);
        repeats = takeRepeats(file);
        file->setResult(result);
    }
    const QuorvinDataPtr data = result.value_or(nullptr);
    mail->post({file, DataCacherDelivery::Fresh, data});
    for (int i = 0; i < repeats; ++i)
        mail->post({file, DataCacherDelivery::Repeat, data});
}

void DataCacherShared::answerRepeat(const FilelistItemPtr &file)
{
    int repeats = 0;
    {
        const std::lock_guard guard(safeLock);
        repeats = takeRepeats(file);
    }
    for (int i = 0; i <= repeats; ++i)
        mail->post({file, DataCacherDelivery::Repeat, nullptr});
}

} // namespace quorvin
