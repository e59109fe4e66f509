// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RegularFile.h"
#include "process/JobRunner.h"
#include "surgery/RemovalReceipt.h"
#include "surgery/WorkFolder.h"

#include <QString>

#include <memory>
#include <stop_token>

namespace quorvin {

/// Takes metadata from images, file after file, each whole or not at all: the work is done on a copy beside
/// its place, in a process that may write nothing but this copy, and the copy, read again and synced, is
/// renamed over the file.
/// Owner, mode, access lists and extended attributes stay. Where a symbolic link is given, what it leads to
/// is rewritten. A file in which there is nothing to remove is not written. One thread.
class MetadataRemover {
public:
    struct Order {
        QString path;
        /// Where the result goes: its folder is made, a name that is taken gets a number. "" is the place of
        /// the file.
        QString target = {};
        bool keepsTimes = false; ///< of last access and modification
        /// Else a file of several names (hard links) is refused: under the others it would stay as it was.
        bool allowsHardLinks = false;
    };

    /// `reader` does the jobs that only read.
    MetadataRemover(const oEXIV2Metadata &options, const JobLimits &limits,
                    std::unique_ptr<JobRunner> reader);

    /// What would come of it. Nothing is written.
    RemovalReceipt planned(const Order &order, const std::stop_token &stop = {});
    /// After a stop the file is as it was, and that is the receipt's failure.
    RemovalReceipt remove(const Order &order, const std::stop_token &stop = {});

private:
    RemovalReceipt receiptOfPlan(const QString &path, const std::stop_token &stop);
    Expected<RemovalResult> run(JobRunner &runner, RemovalRequest request, const std::stop_token &stop) const;
    Expected<void> rewrite(const Order &order, RemovalReceipt &receipt, const std::stop_token &stop);
    Expected<void> workIn(const QString &folder);
    Expected<void> removeInto(const QString &path, RemovalReceipt &receipt, const std::stop_token &stop);
    Expected<void> writeCopy(const RegularFile &file, RemovalReceipt &receipt, const std::stop_token &stop);

    oEXIV2Metadata _options;
    JobLimits _limits;
    std::unique_ptr<JobRunner> _reader;
    std::unique_ptr<WorkFolder> _folder; ///< of the file before
    std::unique_ptr<JobRunner> _writer; ///< may write in it
};

} // namespace quorvin
