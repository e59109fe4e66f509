// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "shell/commands/Command.h"

#include <QFont>
#include <QWidget>

#include <optional>

namespace quorvin {

class CommandSet;

/// How the rows of all panes look, as the settings say.
struct RowLook {
    QFont font;
    /// That of a file's name over what is said of it.
    QFont headlineFont() const;
    int height = 0; ///< device-independent pixels, at least
    int namesWidth = 0; ///< of the names in Extended, as the user dragged it; 0: not yet
    bool wrapsLongLines = true;
    bool rightAlignsParameters = true;
    bool hasHeavyNames = true; ///< in Comparison
};

/// One tab's view of the current file. Draws the record, and takes on the look of its rows, only while it is
/// looked at, so that a step through the list costs what can be seen. Main thread.
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
    /// The values of what is selected, without their names.
    virtual void copyValues() const { }
    /// Selects all that can be selected.
    virtual void selectAll() { }
    /// What the selected line leads to.
    virtual void openCurrent() { }
    /// Asks for a text to look for.
    virtual void find() { }
    /// Goes to its next place, or to the one before; asks for a text where there is none.
    virtual void findNext(bool) { }
    /// Adds what the pane offers while it is looked at.
    virtual void describe(CommandState &) const { }
    /// The commands that this pane alone can do.
    virtual void registerAt(CommandSet &) { }
    void setLook(const RowLook &look);

Q_SIGNALS:
    /// There may be something to copy or not.
    void selectionDidChange();
    /// A context menu of that place.
    void menuWanted(quorvin::CommandPlace place, const QPoint &globalPosition);

protected:
    /// Draws the record, or that there is none.
    virtual void fill(const QuorvinData *record) = 0;
    /// Before the first record, and whenever the settings have changed since it was looked at.
    virtual void applyLook(const RowLook &) { }
    /// What is drawn has changed without the record.
    void refill();

private:
    void fillIfCurrent();
    void applyLookIfCurrent();

    QuorvinDataPtr _record;
    std::optional<RowLook> _newLook; ///< that it has not taken on
    bool _isCurrent = false;
    bool _isFilled = true;
};

} // namespace quorvin
