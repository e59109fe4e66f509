// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"
#include "shell/outline/ExtTreeModel.h"

class QGridLayout;
class QLabel;
class QTreeView;

namespace quorvin {

class CoverView;
class OutlineDelegate;

/// What the General tab says of a file: a cover, four labelled facts, and a line for each stream.
class GeneralPane final : public Pane {
    Q_OBJECT
public:
    explicit GeneralPane(QWidget *parent = nullptr);

    bool canCopy() const override;
    /// The stream lines that are selected, as text.
    void copy() const override;
    void setLook(const RowLook &look) override;

Q_SIGNALS:
    void streamActivated(const QString &key, quint64 streamIndex);
    void locationActivated();

protected:
    void fill(const QuorvinData *record) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Fact {
        QLabel *heading;
        QLabel *value;
    };

    Fact addFact(QGridLayout *grid, int row, const QString &heading);
    void setFact(const Fact &fact, const QString &value);
    void setUpStreams();
    void empty();
    void showCover(const QuorvinData &record);
    void activate(const QModelIndex &index);
    void fitColumns();

    CoverView *_cover;
    Fact _kind;
    Fact _format;
    Fact _size;
    Fact _secondary;
    QTreeView *_streams;
    ExtTreeModel _streamsTree;
    OutlineDelegate *_delegate;
    int _shown = 0; ///< counts what was shown, so that a late cover is not shown for another file
};

} // namespace quorvin
