// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuorvinData.h"
#include "platform/Settings.h"

#include <QProgressBar>
#include <QStackedWidget>
#include <QWidget>

namespace quorvin {

class EmptyPane;
class ExtendedOutline;
class GeneralPane;

/// The tabs of a window and what they show of the current file. Main thread.
class InfoView : public QWidget {
    Q_OBJECT
public:
    enum Tab { General, Extended, Comparison, Custom, TabCount };

    /// `settings` must outlive the view.
    explicit InfoView(const Settings &settings, QWidget *parent = nullptr);

    int currentTab() const { return _tab; }
    void setCurrentTab(int tab);

    /// The window has no file.
    void showNoFile();
    /// A file of which nothing is known yet.
    void clear();
    void showRecord(const QuorvinDataPtr &record);
    void showFailure(const QString &reason);

    /// The sign that the current file is being read.
    void startWorking();
    void stopWorking();

    /// Fonts, row heights, wrapping and alignment as the settings say.
    void applySettings();

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
    void tabWanted(int tab);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void connectPanes();
    void fillOutline();
    void showPage();

    const Settings &_settings;
    QStackedWidget *_pages;
    EmptyPane *_noFile;
    GeneralPane *_general;
    ExtendedOutline *_outline;
    EmptyPane *_failure;
    EmptyPane *_comparison;
    EmptyPane *_custom;
    QProgressBar *_progress;
    int _tab = General;
    bool _hasFile = false;
    bool _hasFailed = false;
    QuorvinDataPtr _record;
    bool _outlineIsFilled = false; ///< shows the record; while the tab is hidden it need not
};

} // namespace quorvin
