// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "model/RecordOptions.h"

#include <QString>

#include <tl/expected.hpp>

namespace quorvin {

/// Something that a format library does to a file.
struct Job {
    enum class Kind : quint8 { Record, RawReport };

    Kind kind = Kind::Record;
    QString path;
    RecordOptions options; ///< of a record
    QString source; ///< of a raw report

    static Job record(const QString &path, const RecordOptions &options)
    {
        return {Kind::Record, path, options, {}};
    }
    static Job rawReport(const QString &path, const QString &source)
    {
        return {Kind::RawReport, path, {}, source};
    }
};

/// What came of it: one of the two, by the kind of the job.
struct JobAnswer {
    QuorvinDataPtr record;
    QString report;
};

/// The error is the reason, for a person to read.
using JobResult = tl::expected<JobAnswer, QString>;

/// Does the job here and now, with the libraries of this process.
JobResult doJob(const Job &job);

} // namespace quorvin
