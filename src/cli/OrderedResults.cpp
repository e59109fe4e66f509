// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/OrderedResults.h"

namespace quorvin::cli {

OrderedResults::OrderedResults(const std::vector<FilelistItemPtr> &files) : _files(files)
{
    for (const FilelistItemPtr &file : files)
        _waiting.insert(file.get());
}

void OrderedResults::dataCacherNewObjectReady(const DataCacherDelivery &delivery)
{
    if (delivery.status == DataCacherDelivery::Fresh)
        _waiting.erase(delivery.file.get());
}

} // namespace quorvin::cli
