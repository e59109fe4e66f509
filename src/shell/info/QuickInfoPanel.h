// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"

#include <QWidget>

#include <array>

class QLabel;
class QScrollArea;

namespace quorvin {

class ElidedLabel;
class FactList;
class LiveSettings;
class QuickInfoStack;
class QuickInfoView;
class StreamTable;

/// A small window that floats over its window and tells of one file in parts that can be closed: the facts of
/// General, its streams or photographic rows, and where it is from. Which parts are closed, and where it
/// stands, is remembered. Main thread.
class QuickInfoPanel final : public QWidget {
    Q_OBJECT
public:
    /// `settings` must outlive the panel.
    QuickInfoPanel(LiveSettings &settings, QWidget *window);

    void showRecord(const QuorvinData &record);
    /// A file of which there is no record, and why; no file with "" as its name.
    void showNote(const QString &name, const QString &note);

    /// One of its parts has the keyboard and something to copy.
    bool canCopy() const;
    void copy() const;

Q_SIGNALS:
    /// It was shown or closed, or something else can be copied.
    void stateDidChange();
    /// A key that has no use here and moves through a list.
    void walkKeyPressed(QKeyEvent *event);

protected:
    /// The keys that walk are not to scroll.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    struct Section {
        const char *key; ///< in the settings
        QuickInfoView *view;
    };

    void layOut();
    void applySettings();
    void restoreFrame();
    void rememberSections();
    void setSectionsShown(bool areShown);

    LiveSettings &_settings;
    ElidedLabel *_name;
    QLabel *_note;
    FactList *_general;
    StreamTable *_streams;
    FactList *_origin;
    QuickInfoStack *_stack;
    QScrollArea *_scroll;
    std::array<Section, 3> _sections;
    bool _wasPlaced = false;
};

} // namespace quorvin
