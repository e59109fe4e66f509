// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/FilelistFilter.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

/// Whether the text occurs in a name. Most names are short and ASCII: these need no room but that on the
/// stack, as each key that is typed asks this of all files.
bool isInName(const SearchText &text, const QString &name)
{
    constexpr qsizetype kShort = 256;
    constexpr char16_t kEndOfAscii = 0x80;
    char16_t all = 0;
    for (const QChar unit : name)
        all |= unit.unicode();
    if (name.size() > kShort || all >= kEndOfAscii)
        return text.isIn(name);
    std::array<char, kShort> bytes;
    std::ranges::transform(name, bytes.begin(), [](QChar unit) { return unit.toLatin1(); });
    return text.isIn(QByteArrayView(bytes.data(), name.size()));
}

} // namespace

FilelistFilterFunction::FilelistFilterFunction(const FilelistFilter &filter)
    : _hidesUnknownFiles(filter.hideUnknownFiles),
      _filenameText(filter.filenameText),
      _globalText(filter.globalText),
      _rule(filter.rule)
{
}

bool FilelistFilterFunction::passesByName(const FilelistItem &file) const
{
    if (_hidesUnknownFiles) {
        const QuorvinDataPtr record = file.quorvinData();
        if (!file.isDone() || (record && record->isUnknown()))
            return false;
    }
    return _filenameText.isEmpty() || isInName(_filenameText, file.prefixedPath());
}

bool FilelistFilterFunction::passes(const FilelistItem &file) const
{
    if (!passesByName(file))
        return false;
    if (!_globalText.isEmpty()) {
        const QuorvinDataPtr record = file.quorvinData();
        if (!record || !record->isContentHas(_globalText))
            return false;
    }
    return _rule.matches(file);
}

} // namespace quorvin
