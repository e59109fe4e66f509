// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "shell/commands/Tabs.h"

#include <QProgressBar>
#include <QStackedWidget>
#include <QWidget>

namespace quorvin {

class CommandSet;
class EmptyPane;
class ExtendedOutline;
class GeneralPane;
class LiveSettings;

/// The tabs of a window and what they show of the current file, in fonts and heights that follow the
/// settings. Main thread.
class InfoView : public QWidget {
    Q_OBJECT
public:
    /// `settings` must outlive the view.
    explicit InfoView(const LiveSettings &settings, QWidget *parent = nullptr);

    Tab currentTab() const { return _tab; }
    void setCurrentTab(Tab tab);

    /// The window has no file.
    void showNoFile();
    /// A file of which nothing is known yet.
    void clear();
    void showRecord(const QuorvinDataPtr &record);
    void showFailure(const QString &reason);

    /// The sign that the current file is being read.
    void startWorking();
    void stopWorking();

    /// What the panes can do on command.
    void registerAt(CommandSet &commands);
    /// What has the keyboard has something to copy.
    bool canCopy() const;
    void copy() const;

    ExtendedOutline &outline() { return *_outline; }
    GeneralPane &general() { return *_general; }

Q_SIGNALS:
    void openWanted();
    void retryWanted();
    void selectionDidChange();
    void menuWanted(const QPoint &globalPosition);
    /// A stream line leads to its group on that tab.
    void tabWanted(quorvin::Tab tab);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectPanes();
    /// Fonts, row heights, wrapping and alignment.
    void applySettings();
    void fillOutline();
    void showPage();

    const LiveSettings &_settings;
    QStackedWidget *_pages;
    EmptyPane *_noFile;
    GeneralPane *_general;
    ExtendedOutline *_outline;
    EmptyPane *_failure;
    EmptyPane *_comparison;
    EmptyPane *_custom;
    QProgressBar *_progress;
    Tab _tab = Tab::General;
    bool _hasFile = false;
    bool _hasFailed = false;
    QuorvinDataPtr _record;
    bool _outlineIsFilled = false; ///< shows the record; while the tab is hidden it need not
};

} // namespace quorvin
