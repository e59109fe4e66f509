// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QFont>
#include <QWidget>

namespace quorvin {

class CommandSet;

/// How the rows of all panes look, as the settings say.
struct RowLook {
    QFont font;
    int height = 0; ///< device-independent pixels, at least
    bool wrapsLongLines = true;
    bool rightAlignsParameters = true;
};

/// One tab's view of the current file. Draws the record only while it is looked at, so that a step through
/// the list costs what can be seen. Main thread.
class Pane : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Nothing is known of the current file.
    void clear() { showRecord(nullptr); }
    /// Null: as `clear`.
    void showRecord(const QuorvinDataPtr &record);
    /// Whether it is the pane that is looked at.
    void setCurrent(bool isCurrent);

    /// It has the keyboard, and something is selected in it.
    virtual bool canCopy() const { return false; }
    /// What is selected, to the clipboard.
    virtual void copy() const { }
    /// The commands that this pane alone can do.
    virtual void registerAt(CommandSet &) { }
    virtual void setLook(const RowLook &) { }

Q_SIGNALS:
    /// There may be something to copy or not.
    void selectionDidChange();

protected:
    /// Draws the record, or that there is none.
    virtual void fill(const QuorvinData *record) = 0;

private:
    void fillIfCurrent();

    QuorvinDataPtr _record;
    bool _isCurrent = false;
    bool _isFilled = true;
};

} // namespace quorvin
