// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace quorvin {

/// A metadata item as text.
struct ImageTag {
    TermPtr term; ///< the library's full key and its label
    std::string value; ///< UTF-8
    std::string group;
};

/// Metadata items in the order of the file.
class TagList {
public:
    /// A key that comes again is listed again, and each of its places has the newest item.
    void append(ImageTag tag);
    /// A key that comes again joins its value to the first one, with a comma and a blank.
    void join(ImageTag tag);

    bool isEmpty() const { return _order.empty(); }
    std::size_t count() const { return _order.size(); }
    const ImageTag &operator[](std::size_t place) const { return _tags[_order[place]]; }
    /// The value under that key; absent when there is none, or only an empty one.
    std::optional<QString> value(const QString &key) const;

private:
    static constexpr quint32 kFree = ~quint32{0};

    /// Where the key stands in the table, or the free slot for it.
    std::size_t slotOf(const QString &key) const;
    const ImageTag *find(const QString &key) const;
    void grow();

    std::vector<ImageTag> _tags; ///< one a key
    std::vector<quint32> _order; ///< places in `_tags`
    std::vector<quint32> _slots; ///< places in `_tags` by the hash of their keys, at most half full
};

} // namespace quorvin
