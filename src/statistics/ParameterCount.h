// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"
#include "model/Quantity.h"

#include <QLatin1String>
#include <QString>
#include <QtGlobal>

#include <memory>
#include <span>
#include <vector>

namespace quorvin {

/// What some files come to.
struct CountSum {
    qint64 files = 0;
    qint64 streams = 0; ///< times that they have it: a film has a language for each of its sounds
    qint64 duration = 0; ///< of the files, each once; milliseconds
    qint64 bytes = 0; ///< likewise

    bool operator==(const CountSum &) const = default;
};

/// The values of one parameter over a list of files. Does not change once made, so any thread may read it.
struct ParameterCount {
    /// A distinct text.
    struct Value {
        QString text;
        Quantity quantity; ///< of kind Text when it measures nothing
        CountSum sum;
        quint32 first = 0; ///< in `places`: where its files stand
        quint32 size = 0;
    };
    struct File {
        FilelistItemPtr file;
        qint64 duration = 0; ///< milliseconds
        qint64 bytes = 0;
    };

    QString parameter; ///< SECTION/NAME, or `kFailures`
    std::vector<File> files; ///< that were read, and those that failed; in the order of the list
    std::vector<Value> values; ///< the most frequent first; those of as many files as by a file browser
    std::vector<quint32> places; ///< of files, value by value, in the order of the list
    std::vector<quint32> missing; ///< places of the other files that have none
    std::vector<quint32> failed; ///< places of files that could not be read; none of `kFailures`
    qint64 unread = 0; ///< files of the list that no analysis has told anything of

    /// Those that can have a value.
    qint64 countedFiles() const { return static_cast<qint64>(files.size() - failed.size()); }
    qint64 filesWithValue() const { return countedFiles() - static_cast<qint64>(missing.size()); }
    std::span<const quint32> placesOf(const Value &value) const
    {
        return std::span(places).subspan(value.first, value.size);
    }
    /// What the files at these places come to; its `streams` are 0.
    CountSum sumOf(std::span<const quint32> filePlaces) const;
};

using ParameterCountPtr = std::shared_ptr<const ParameterCount>;

/// In the place of a parameter: why files could not be read. Those that could be have no value of it.
inline constexpr QLatin1String kFailures("failed");

} // namespace quorvin
