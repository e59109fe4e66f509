// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace quorvin {

/// A row of the comparison of files: the heading of a section, or a parameter against the files.
struct ComparisonRow {
    QStringList values; ///< name, then a value of each file, "" where it has none; of a heading only the name
    bool allEqual = false; ///< one text in all files; of a heading, that every row of its section is so
    QString section; ///< key of the group in the records, such as "Audio"
    quint32 stream = 0; ///< its number, as `ParameterGroups::Stream` has it, in the first file with it
    QString key; ///< of the parameter; "" in a heading
    int rows = 0; ///< of a heading: parameters of its section
    int differing = 0; ///< of a heading: those of them that are not equal in all files

    /// What tells sections of one key apart: a group that is no stream of a kind meets the first stream.
    quint32 number() const { return std::max<quint32>(stream, 1); }
    /// The values alone; not of a heading.
    std::span<const QString> inFiles() const { return std::span(values.cbegin(), values.cend()).subspan(1); }
    bool isHeading() const { return values.size() < 2; }
    bool operator==(const ComparisonRow &) const = default;
};

/// Whether one text is the other without a look at their letters, as it is with equal neighbours in a row.
inline bool shareText(const QString &left, const QString &right)
{
    return left.constData() == right.constData() && left.size() == right.size();
}

/// The rows of a comparison, each heading in front of the rows of its section. All parameter rows have the
/// same number of values.
using ComparisonContent = std::vector<ComparisonRow>;

/// Makes the rows of any number of files, one file after the other, and keeps no record: of neighbours with
/// one value a single text, and of a file without a parameter nothing.
///
/// Sections stand in the order in which files first have them, and so do the parameters of a section. Streams
/// of one kind are matched by their number, a group that is no stream with the first one; the heading bears
/// it as soon as one file has several. What is marked to be skipped in comparisons is left out, and a section
/// without any other parameter too. Of a key that a stream has twice the last value counts.
///
/// Add all files, then take the rows. One thread an object, any thread.
class ComparisonBuilder {
public:
    void add(const QuorvinData &record);
    /// The next row, complete; null behind the last one. It lasts until the next call. Without a file there
    /// is none.
    const ComparisonRow *next();
    /// All rows that are left.
    ComparisonContent take();

private:
    /// Files one behind the other that have one value.
    struct Run {
        qsizetype first = 0;
        qsizetype count = 0;
        QString value;

        qsizetype end() const { return first + count; }
    };
    struct Row {
        TermPtr term;
        std::vector<Run> runs;
    };
    struct Section {
        QString key;
        quint32 stream = 0;
        bool isNumbered = false;
        std::vector<Row> rows;
        QHash<QString, std::size_t> places; ///< of rows, by the parameter's key
    };

    Section &sectionOf(const ParameterGroups::Group &group, const ParameterGroups::Stream &stream);
    std::size_t rowOf(Section &section, const TermPtr &term, std::size_t likely) const;
    void addStream(Section &section, const ParameterGroups &groups, const ParameterGroups::Stream &stream);
    void put(Row &row, QByteArrayView value) const;
    bool isEqualInAll(const Row &row) const;
    ComparisonRow headingOf(const Section &section) const;
    ComparisonRow completed(const Section &section, const Row &row) const;

    qsizetype _files = 0;
    std::vector<Section> _sections;
    QHash<std::pair<QString, quint32>, std::size_t> _places; ///< of sections
    ComparisonRow _current;
    std::size_t _nextSection = 0;
    std::size_t _nextRow = 0; ///< of that section; 0: its heading
};

/// The rows of these files, none of them null; a value for each, in their order. Any thread.
ComparisonContent comparisonRows(std::span<const QuorvinDataPtr> records);

} // namespace quorvin
