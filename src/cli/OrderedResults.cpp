// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/OrderedResults.h"

namespace quorvin::cli {

namespace {

qsizetype bytesOf(const QuorvinDataPtr &record)
{
    qsizetype bytes = 0;
    if (!record)
        return bytes;
    for (const auto &group : record->groups().groups()) {
        for (const auto &stream : group.streams) {
            for (const auto &parameter : record->groups().parameters(stream))
                bytes += parameter.length + static_cast<qsizetype>(sizeof parameter);
        }
    }
    return bytes;
}

} // namespace

OrderedResults::OrderedResults(const std::vector<FilelistItemPtr> &files) : _files(files)
{
    for (const FilelistItemPtr &file : files)
        _waiting.insert(file.get());
}

void OrderedResults::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (delivery.status == DataCacherDelivery::Fresh && _waiting.erase(delivery.file.get()) > 0)
        _waitingBytes += bytesOf(delivery.data);
}

FileResult OrderedResults::takeNext()
{
    FileResult result{_files[_next++], nullptr};
    if (const auto error = result.file->error())
        result.record = tl::unexpected(*error);
    else
        result.record = result.file->quorvinData();
    if (result.record)
        _waitingBytes -= bytesOf(*result.record);
    result.file->releaseQuorvinData();
    return result;
}

} // namespace quorvin::cli
