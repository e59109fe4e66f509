// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/FilePairs.h"

#include "platform/FileOrder.h"
#include "platform/NativePath.h"

#include <QHash>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace quorvin::cli {

namespace {

QString nameWithoutExtension(const FilelistItemPtr &file)
{
    const QString &path = file->prefixedPath();
    const QString extension = pathExtension(path);
    return extension.isEmpty() ? path : path.chopped(extension.size() + 1);
}

const QString &listedNameOf(const FilePair &pair)
{
    return (pair.first ? pair.first : pair.second)->prefixedPath();
}

class Pairing {
public:
    explicit Pairing(const std::vector<FilelistItemPtr> &first)
    {
        for (const FilelistItemPtr &file : first) {
            _places[nameWithoutExtension(file)].push_back(_pairs.size());
            _pairs.push_back({file, nullptr});
        }
    }

    /// Gives back those that found no partner with their very name.
    std::vector<FilelistItemPtr> takeSameNames(const std::vector<FilelistItemPtr> &files)
    {
        return take(files, [](const FilelistItemPtr &left, const FilelistItemPtr &right) {
            return left->prefixedPath() == right->prefixedPath();
        });
    }

    void takeRest(const std::vector<FilelistItemPtr> &files)
    {
        for (const FilelistItemPtr &file : take(files, [](const auto &, const auto &) { return true; }))
            _pairs.push_back({nullptr, file});
    }

    std::vector<FilePair> inOrder() &&
    {
        std::vector<QString> names;
        std::ranges::transform(_pairs, std::back_inserter(names), listedNameOf);
        std::vector<FilePair> sorted;
        for (const std::size_t index : fileBrowserOrder(names))
            sorted.push_back(std::move(_pairs[index]));
        return sorted;
    }

private:
    template <typename Fits>
    std::vector<FilelistItemPtr> take(const std::vector<FilelistItemPtr> &files, Fits fits)
    {
        std::vector<FilelistItemPtr> left;
        for (const FilelistItemPtr &file : files) {
            const auto places = _places.value(nameWithoutExtension(file));
            const auto place = std::ranges::find_if(places, [&](std::size_t candidate) {
                return !_pairs[candidate].second && fits(_pairs[candidate].first, file);
            });
            if (place == places.end())
                left.push_back(file);
            else
                _pairs[*place].second = file;
        }
        return left;
    }

    std::vector<FilePair> _pairs;
    QHash<QString, std::vector<std::size_t>> _places; ///< by the name without extension
};

} // namespace

std::vector<FilePair> filePairs(const std::vector<FilelistItemPtr> &first,
                                const std::vector<FilelistItemPtr> &second)
{
    Pairing pairing(first);
    pairing.takeRest(pairing.takeSameNames(second));
    return std::move(pairing).inOrder();
}

} // namespace quorvin::cli
