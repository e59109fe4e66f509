// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"

#include <QHash>
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
    std::vector<ImageTag> _tags; ///< one a key
    std::vector<std::size_t> _order; ///< places in `_tags`
    QHash<QString, std::size_t> _places;
};

} // namespace quorvin
