// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QMimeData;

namespace quorvin {

class FilelistController;
struct Session;

/// What a drop on a list would do.
struct DropPlan {
    bool isAccepted = false;
    bool reorders = false; ///< the rows are the list's own
    bool replaces = false; ///< the files become the content, wherever they are dropped
    bool takesFromSource = false; ///< the list that they come from loses them
};

/// Rows of a window's list that are dragged away, and what is dropped on it: its own rows change their
/// places; those of another window's list move here, are copied with Control, replace the content with Shift,
/// and both with both; files of other programs join the list, or replace it with Shift. What leaves the
/// program is always offered as a copy. Main thread.
class FilelistDrags : public QObject {
    Q_OBJECT
public:
    /// Where a drop on the window, and not on its list, puts the files: at the end, and selects them.
    static constexpr int kNoRow = -1;

    using Replacement = std::function<void()>;

    /// Both must outlive this object.
    FilelistDrags(FilelistController &files, Session &session, QObject *parent = nullptr);

    /// A drop that replaces the content is done by that function, which may ask first. As it is, at once.
    void setReplacing(std::function<void(const Replacement &)> replacing)
    {
        _replacing = std::move(replacing);
    }

    /// The selected rows, for a drag that begins now; null when there are none.
    std::unique_ptr<QMimeData> begin();
    /// The drag has ended, however it did.
    void end();

    DropPlan planFor(const QMimeData &content, Qt::KeyboardModifiers modifiers) const;
    /// What the plan does, and what else can be done, for people.
    static QString hintFor(const DropPlan &plan);

    /// Does what is planned, in front of `row` of the arranged list. Files are taken, and go from where they
    /// were, only after the drag itself has ended.
    void drop(const QMimeData &content, Qt::KeyboardModifiers modifiers, int row);

Q_SIGNALS:
    /// What to tell while something is dragged over the window; "" for nothing.
    void hintDidChange(const QString &hint);

private:
    void reorder(int row);
    void add(const QStringList &paths, int row);
    void removeDraggedItems();
    /// Those of the dragged files that are still in the list, in its order.
    std::vector<int> draggedRows() const;

    FilelistController &_files;
    Session &_session;
    std::vector<FilelistItemPtr> _draggingItems;
    QPointer<FilelistDrags> _giver; ///< the list that loses what was dropped here last
    std::function<void(const Replacement &)> _replacing = [](const Replacement &replace) { replace(); };
};

} // namespace quorvin
