// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/RecordIndex.h"
#include "filter/RuleCondition.h"
#include "filter/ValueTable.h"
#include "statistics/ParameterCount.h"

#include <QByteArrayView>
#include <QString>

#include <span>
#include <stop_token>
#include <utility>
#include <vector>

namespace quorvin {

/// Counts one parameter while files come one by one, in the order of their list. Keeps only the values that
/// it counts. One thread.
class ParameterTally {
public:
    /// SECTION/NAME as in a rule, or `kFailures`.
    explicit ParameterTally(const QString &parameter);

    /// A file that was read. Looks at what the Extended tree shows.
    void add(const FilelistItemPtr &file, const QuorvinData &record);
    void addFailed(const FilelistItemPtr &file, const QString &reason);
    /// A file of a list that waits for its analysis.
    void addUnread() { ++_count.unread; }
    /// The file's entry is one of the index, which is the same in all calls.
    void add(const RecordIndex &index, const RecordIndex::Entry &entry);

    /// Whether some file had a value of it.
    bool hasValues() const { return !_found.empty(); }
    /// What came so far; nothing is added any more.
    ParameterCountPtr finish();

private:
    void begin(const FilelistItemPtr &file, qint64 duration, qint64 bytes);
    void end();
    void addValues(const QuorvinData &record);
    void addValue(QByteArrayView utf8);
    quint32 numberOf(const RecordIndex &index, quint32 value);
    void gatherPlaces();
    void sortValues();

    ParameterCount _count;
    RuleCondition _condition;
    bool _countsFailures;
    ValueTable _table;
    std::vector<std::pair<quint32, quint32>> _found; ///< value and place, in the order of the files
    std::size_t _foundBefore = 0; ///< the file that is being added
    std::vector<quint8> _isAbout; ///< by the terms of the index
    std::vector<quint32> _numberOf; ///< by the values of the index
};

/// Counts one parameter over a list by its index. Null once a stop is asked for.
ParameterCountPtr countOf(const QString &parameter, const RecordIndex &index,
                          std::span<const FilelistItemPtr> files, const std::stop_token &stop = {});

} // namespace quorvin
