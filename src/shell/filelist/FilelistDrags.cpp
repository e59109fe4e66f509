// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistDrags.h"

#include "platform/FileUri.h"
#include "shell/filelist/FilelistController.h"
#include "shell/session/Session.h"

#include <QMimeData>
#include <QTimer>

#include <algorithm>

namespace quorvin {

namespace {

constexpr QLatin1String kFilelistType("QuorvinFilelistPBoardType");
constexpr QLatin1String kUriListType("text/uri-list");
constexpr int kDropMilliseconds = 100; ///< so that the drag ends first

} // namespace

FilelistDrags::FilelistDrags(FilelistController &files, Session &session, QObject *parent)
    : QObject(parent), _files(files), _session(session)
{
}

std::unique_ptr<QMimeData> FilelistDrags::begin()
{
    _draggingItems.clear();
    QStringList paths;
    for (const int row : _files.selectedRows()) {
        _draggingItems.push_back(_files.arranged().fileAt(row));
        paths.append(_draggingItems.back()->filename());
    }
    if (paths.isEmpty())
        return nullptr;
    auto content = std::make_unique<QMimeData>();
    content->setData(kUriListType, uriListOf(paths));
    content->setData(kFilelistType, {});
    _session.draggingSource = this;
    return content;
}

void FilelistDrags::end()
{
    if (_session.draggingSource == this)
        _session.draggingSource = nullptr;
}

DropPlan FilelistDrags::planFor(const QMimeData &content, Qt::KeyboardModifiers modifiers) const
{
    DropPlan plan;
    const bool isList = content.hasFormat(kFilelistType);
    plan.reorders = isList && _session.draggingSource == this;
    if (plan.reorders) {
        plan.isAccepted = _files.arranged().sortColumn() < 0;
        return plan;
    }
    plan.isAccepted = content.hasFormat(kUriListType);
    plan.replaces = modifiers.testFlag(Qt::ShiftModifier);
    // The list of another program's window cannot be told to lose anything.
    plan.takesFromSource = isList && _session.draggingSource && !modifiers.testFlag(Qt::ControlModifier);
    return plan;
}

QString FilelistDrags::hintFor(const DropPlan &plan)
{
    if (!plan.isAccepted)
        return {};
    if (plan.reorders)
        return tr("Drop between two files to move the rows there");
    if (plan.replaces)
        return plan.takesFromSource
            ? tr(
                "Drop to replace the list, and take the files from the other window (Ctrl: leave them there)")
            : tr("Drop to replace the list");
    return plan.takesFromSource ? tr("Drop to move to this list (Ctrl: copy, Shift: replace the list)")
                                : tr("Drop to add to the list (Shift: replace it)");
}

void FilelistDrags::drop(const QMimeData &content, Qt::KeyboardModifiers modifiers, int row)
{
    const DropPlan plan = planFor(content, modifiers);
    auto *source = qobject_cast<FilelistDrags *>(_session.draggingSource.data());
    _session.draggingSource = nullptr;
    if (!plan.isAccepted)
        return;
    if (plan.reorders)
        return reorder(row);
    const QStringList paths = pathsFromUriList(content.data(kUriListType));
    if (paths.isEmpty())
        return;
    _giver = plan.takesFromSource ? source : nullptr;
    const auto take = [this, paths, plan, row] {
        if (plan.replaces)
            _files.processFiles(paths);
        else
            add(paths, row);
        if (_giver)
            _giver->removeDraggedItems();
    };
    QTimer::singleShot(kDropMilliseconds, this, [this, take, plan] {
        if (plan.replaces)
            _replacing(take);
        else
            take();
    });
}

void FilelistDrags::add(const QStringList &paths, int row)
{
    if (row == kNoRow)
        _files.processAdditionalFilesAndSelectFirst(paths);
    else if (row >= _files.arranged().rowCount())
        _files.processAdditionalFiles(paths);
    else
        _files.processAdditionalFilesAtIndex(paths, _files.arranged().rowInWholeList(row));
}

void FilelistDrags::reorder(int row)
{
    if (row == kNoRow)
        return;
    std::vector<int> rows;
    for (const int dragged : draggedRows())
        rows.push_back(_files.arranged().rowInWholeList(dragged));
    const bool isBehindAll = row >= _files.arranged().rowCount();
    _files.moveFiles(rows,
                     isBehindAll ? static_cast<int>(_files.filelist().size())
                                 : _files.arranged().rowInWholeList(row));
}

void FilelistDrags::removeDraggedItems()
{
    const std::vector<int> rows = draggedRows();
    _draggingItems.clear();
    if (rows.empty())
        return;
    // As a rule it is so already, and thousands of single rows are slow to select.
    if (rows != _files.selectedRows()) {
        QItemSelection dragged;
        for (const int row : rows)
            dragged.select(_files.arranged().index(row, 0), _files.arranged().index(row, 0));
        _files.selection().select(dragged, QItemSelectionModel::ClearAndSelect);
    }
    _files.removeSelectedItems();
}

std::vector<int> FilelistDrags::draggedRows() const
{
    std::vector<int> rows;
    for (const FilelistItemPtr &file : _draggingItems) {
        if (const int row = _files.arranged().rowOf(file); row >= 0)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

} // namespace quorvin
