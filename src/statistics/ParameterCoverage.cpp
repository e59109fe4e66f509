// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/ParameterCoverage.h"

#include "platform/FileOrder.h"
#include "statistics/ParameterCount.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kFilesBetweenLooks = 1024;
constexpr quint32 kNobody = std::numeric_limits<quint32>::max();

/// The names that parameters of the index share, and which of them each term has.
class SharedNames {
public:
    explicit SharedNames(const RecordIndex &index)
    {
        QHash<QString, quint32> known;
        for (const RecordIndex::Name &one : index.names()) {
            const QString name = (one.subgroup.isEmpty() ? one.group : one.subgroup) + u'/' + one.term->label;
            const auto number = static_cast<quint32>(names.size());
            const auto found = known.constFind(name);
            nameOf.push_back(found == known.cend() ? number : *found);
            if (found != known.cend())
                continue;
            known.insert(name, number);
            names.push_back(name);
        }
    }

    std::vector<QString> names;
    std::vector<quint32> nameOf; ///< by the terms of the index
};

/// All values name by name: an array in which those of each name stand together.
class ValuesByName {
public:
    ValuesByName(const RecordIndex &index, const SharedNames &shared) : _index(index), _shared(shared)
    {
        _counts.resize(shared.names.size());
        _files.resize(shared.names.size());
        _lastFile.assign(shared.names.size(), kNobody);
    }

    void count(const RecordIndex::Entry &entry, quint32 file)
    {
        for (const quint16 term : _index.terms(entry)) {
            const quint32 name = _shared.nameOf[term];
            ++_counts[name];
            if (std::exchange(_lastFile[name], file) != file)
                ++_files[name];
        }
    }
    void beginValues()
    {
        _ends.resize(_counts.size());
        std::exclusive_scan(_counts.begin(), _counts.end(), _ends.begin(), std::size_t{0});
        _values.resize(std::reduce(_counts.begin(), _counts.end()));
    }
    void addValues(const RecordIndex::Entry &entry)
    {
        const auto terms = _index.terms(entry);
        const auto values = _index.values(entry);
        for (std::size_t i = 0; i < terms.size(); ++i)
            _values[_ends[_shared.nameOf[terms[i]]]++] = values[i];
    }
    /// Marks each value with the last name that it was seen under.
    std::vector<ParameterCoverage> result() const
    {
        std::vector<quint32> nameOfValue(_index.valueTable().size(), kNobody);
        std::vector<ParameterCoverage> all;
        for (quint32 name = 0; name < _counts.size(); ++name) {
            ParameterCoverage one{_shared.names[name], _files[name]};
            for (const quint32 value : std::span(_values).subspan(_ends[name] - _counts[name], _counts[name]))
                one.values += std::exchange(nameOfValue[value], name) == name ? 0 : 1;
            if (one.files > 0)
                all.push_back(std::move(one));
        }
        return all;
    }

private:
    const RecordIndex &_index;
    const SharedNames &_shared;
    std::vector<std::size_t> _counts; ///< by name, as the two below
    std::vector<qint64> _files;
    std::vector<quint32> _lastFile;
    std::vector<std::size_t> _ends;
    std::vector<quint32> _values;
};

qsizetype distance(const QString &left, const QString &right)
{
    std::vector<qsizetype> row(static_cast<std::size_t>(right.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < left.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 1; j < row.size(); ++j) {
            const bool isSame = left[i] == right[static_cast<qsizetype>(j) - 1];
            const qsizetype changed = diagonal + (isSame ? 0 : 1);
            diagonal = std::exchange(row[j], std::min({changed, row[j] + 1, row[j - 1] + 1}));
        }
    }
    return row.back();
}

} // namespace

std::vector<ParameterCoverage> coverageOf(const RecordIndex &index, std::span<const FilelistItemPtr> files,
                                          const std::stop_token &stop)
{
    const SharedNames shared(index);
    ValuesByName values(index, shared);
    std::vector<std::size_t> entries;
    for (const FilelistItemPtr &file : files) {
        if (const auto entry = index.entryOf(file.get()))
            entries.push_back(*entry);
    }
    const auto isStopped
        = [&](std::size_t place) { return place % kFilesBetweenLooks == 0 && stop.stop_requested(); };
    for (std::size_t i = 0; i < entries.size() && !isStopped(i); ++i)
        values.count(index.entries()[entries[i]], static_cast<quint32>(i));
    values.beginValues();
    for (std::size_t i = 0; i < entries.size() && !isStopped(i); ++i)
        values.addValues(index.entries()[entries[i]]);
    if (stop.stop_requested())
        return {};
    const std::vector<ParameterCoverage> all = values.result();
    std::vector<QString> names;
    std::ranges::transform(all, std::back_inserter(names), &ParameterCoverage::name);
    std::vector<ParameterCoverage> sorted;
    for (const std::size_t place : fileBrowserOrder(names))
        sorted.push_back(all[place]);
    return sorted;
}

ParameterCoverage failureCoverageOf(const RecordIndex &index, std::span<const FilelistItemPtr> files)
{
    ParameterCoverage failures{kFailures};
    QSet<QString> reasons;
    for (const FilelistItemPtr &file : files) {
        const auto entry = index.entryOf(file.get());
        if (!entry || index.entries()[*entry].fileType != RecordIndex::kFailed)
            continue;
        ++failures.files;
        reasons.insert(file->failureReason());
    }
    failures.values = reasons.size();
    return failures;
}

QStringList namesLike(const QString &name, const QStringList &known)
{
    constexpr std::size_t kMostNames = 3;
    constexpr qsizetype kLongest = 200; ///< letters; longer names are the doing of damaged files
    const QString wanted = name.left(kLongest).toCaseFolded();
    std::vector<std::pair<qsizetype, QString>> near;
    for (const QString &one : known) {
        const QString folded = one.left(kLongest).toCaseFolded();
        const QString label = folded.section(u'/', 1);
        const bool isPart = folded.contains(wanted) || (!label.isEmpty() && label == wanted.section(u'/', 1));
        const qsizetype apart = isPart ? 1 : distance(wanted, folded);
        if (apart <= std::max<qsizetype>(2, wanted.size() / 3))
            near.emplace_back(apart, one);
    }
    std::ranges::stable_sort(near, {}, [](const auto &one) { return one.first; });
    QStringList names;
    for (const auto &[apart, one] : std::span(near).first(std::min(near.size(), kMostNames)))
        names.append(one);
    return names;
}

} // namespace quorvin
