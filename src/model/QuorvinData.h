// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ExportInfo.h"
#include "model/ExtTreeItem.h"
#include "model/RecordContents.h"
#include "model/SearchText.h"

#include <memory>
#include <optional>

namespace quorvin {

/// The record of one analysed file. It does not change once made, so any thread may read it.
class QuorvinData {
public:
    explicit QuorvinData(RecordContents contents) : _contents(std::move(contents)) { }

    const RecordContents &contents() const { return _contents; }
    const QString &filename() const { return _contents.filename; }
    qint64 duration() const { return _contents.duration; }
    bool isImage() const { return _contents.isImage; }
    bool isVideo() const { return _contents.isVideo; }
    bool isAudio() const { return _contents.isAudio; }
    bool isUnknown() const { return !isImage() && !isVideo() && !isAudio(); }
    const QString &format() const { return _contents.general.format; }
    const std::optional<QString> &formatProfile() const { return _contents.general.formatProfile; }
    const GeneralFacts &generalInfo() const { return _contents.general; }
    const ParameterGroups &groups() const { return _contents.groups; }
    const std::optional<Location> &mapLocation() const { return _contents.mapLocation; }

    /// The tree of the Extended tab, made anew: a group node for each stream, its parameters as leaves.
    ExtTreeItems extendedContent() const;
    /// The parameters of that tree in whose name or value the text occurs, with the groups that have any; the
    /// whole tree for "".
    ExtTreeItems extendedContentHaving(const SearchText &text) const;
    /// Whether there is such a parameter; false for "". Makes no tree.
    bool isContentHas(const SearchText &text) const;

    /// What is marked for export. The second form leaves private facts out, but for those
    /// that their reader marks as private in the tree only.
    ExportInfo computeExportInfo() const { return quorvin::computeExportInfo(_contents, false); }
    ExportInfo computeExportInfoWithoutFilePrivate(bool without) const
    {
        return quorvin::computeExportInfo(_contents, without);
    }

    /// The Extended tree as text: for each group its name and then "name: value" lines, an empty line between
    /// groups, lines joined by line feeds. The second form leaves private facts out.
    QString stringForExportText() const;
    QString stringForExportTextWithoutFilePrivate() const;

    /// The General tab as text: a "Container: …" line, then a line for each stream.
    QString stringForExportGeneral() const;

private:
    RecordContents _contents;
};

using QuorvinDataPtr = std::shared_ptr<const QuorvinData>;

/// The leaves in whose name or value the text occurs, as copies in copies of their groups. A group without
/// one is dropped, whatever its own name; so is a leaf without value.
ExtTreeItems extTree(const ExtTreeItems &items, const SearchText &having);

/// Appends the text unless it is "".
void addStringIfNotEmpty(QStringList &list, const QString &text);

/// The lines of a tree, as `stringForExportText` joins them, appended to `lines`.
void convertFromDataArray(const ExtTreeItems &items, QStringList &lines, bool skipFilePrivate);

} // namespace quorvin
