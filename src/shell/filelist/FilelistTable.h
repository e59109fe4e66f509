// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QElapsedTimer>
#include <QListView>
#include <QPersistentModelIndex>
#include <QTimer>

#include <optional>

namespace quorvin {

class FilelistDrags;

/// The list of files at the side of a window. What is selected, and which file is the current one, is kept by
/// whoever owns the selection.
class FilelistTable : public QListView {
    Q_OBJECT
public:
    /// The rows are those of `FilelistRow`; `selection` is one over `model`. Both must outlive the table.
    FilelistTable(QAbstractItemModel &model, QItemSelectionModel &selection, QWidget *parent = nullptr);

    /// From now on rows can be dragged, and something be dropped between them. `drags` must outlive the
    /// table.
    void setDrags(FilelistDrags &drags);

    /// Nothing: what acts on the selection is not to take all files by a slip.
    void selectAll() override { }

    /// The paths of the selected rows, as addresses and as text.
    void copy() const;
    static void copyPaths(const QStringList &paths);

    /// Frames the row, which a menu is about though it is not selected; none for an invalid one.
    void setFramedRow(const QModelIndex &row);

    /// Goes to the next file whose name, without its folder, begins with what is typed in one go.
    void keyboardSearch(const QString &search) override;

Q_SIGNALS:
    /// For that row, which need not be selected.
    void menuWanted(const QModelIndex &row, const QPoint &globalPosition);
    /// The file is to be opened: a double click, or Return.
    void openWanted(const QString &path);

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void startDrag(Qt::DropActions supported) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight,
                     const QList<int> &roles) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    /// The next letter goes to the name that is being typed.
    bool isTyping() const;

    static constexpr int kNoLine = -1;
    static constexpr int kWholeList = -2;

    /// The current row, and how many are dragged with it.
    QPixmap dragPicture() const;
    /// The row in front of which a drop goes; absent on the middle of a row.
    std::optional<int> dropRowAt(const QPoint &position) const;
    /// Shows where a drop would go: the row behind the line, or one of the above.
    void setDropLine(int row);
    void paintDropLine();
    void paintFrame();
    /// Turns the spinners of the rows in sight, for as long as one of them has no result.
    void followReading();
    /// Selects from where the selection began to that row, which becomes the current one.
    void extendSelectionTo(const QModelIndex &row);

    FilelistDrags *_drags = nullptr;
    int _dropLine = kNoLine;
    QPersistentModelIndex _framedRow;
    QPersistentModelIndex _anchor; ///< where Shift extends the selection from
    bool _isExtending = false;
    QTimer _readingTimer;
    QString _typed;
    QElapsedTimer _sinceTyped;
};

} // namespace quorvin
