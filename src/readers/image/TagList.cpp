// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/TagList.h"

namespace quorvin {

void TagList::append(ImageTag tag)
{
    const auto known = _places.constFind(tag.term->key);
    if (known != _places.constEnd()) {
        _order.push_back(*known);
        _tags[*known] = std::move(tag);
        return;
    }
    _places.insert(tag.term->key, _tags.size());
    _order.push_back(_tags.size());
    _tags.push_back(std::move(tag));
}

void TagList::join(ImageTag tag)
{
    const auto known = _places.constFind(tag.term->key);
    if (known == _places.constEnd())
        append(std::move(tag));
    else
        _tags[*known].value += ", " + tag.value;
}

std::optional<QString> TagList::value(const QString &key) const
{
    const auto known = _places.constFind(key);
    if (known == _places.constEnd() || _tags[*known].value.empty())
        return std::nullopt;
    return QString::fromStdString(_tags[*known].value);
}

} // namespace quorvin
