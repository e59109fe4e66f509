// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "model/Error.h"
#include "model/QuorvinData.h"
#include "shell/commands/Command.h"

#include <QStackedWidget>
#include <QWidget>

#include <array>
#include <memory>
#include <optional>

class QPushButton;

namespace quorvin {

class CommandSet;
class CustomPane;
class ComparisonPane;
class ComparisonView;
class EmptyPane;
class ExtendedOutline;
class ExtendedPane;
class FailurePane;
class GeneralPane;
class LiveSettings;
class Pane;
struct FileSum;

/// The tabs of a window and what they show of the current file, in fonts and heights that follow the
/// settings. Main thread.
class InfoView : public QWidget {
    Q_OBJECT
public:
    /// `settings` must outlive the view.
    explicit InfoView(LiveSettings &settings, QWidget *parent = nullptr);

    Tab currentTab() const { return _tab; }
    void setCurrentTab(Tab tab);

    /// The window has no file.
    void showNoFile();
    /// It has some, but these filters let none of them pass. `isReading`: some may come.
    void showNothingPasses(const QStringList &filters, bool isReading);
    /// A file of which nothing is known yet.
    void clear();
    void showRecord(const QuorvinDataPtr &record);
    /// Of the file at that path.
    void showFailure(const QString &path, const Error &error);
    /// Several files are selected: General shows their sum in place of the current file. Null: one, or none.
    void showSum(const std::shared_ptr<const FileSum> &sum);
    /// Files are looked for, so many of which are found. A window with files shows nothing of it.
    void showWalk(int found);
    void stopWalk();

    /// A file that was left unread.
    void showUnread();
    /// The file of that name is being read. From when it can be skipped on, `seconds` tells for how long.
    /// `digests` are computed at the time.
    void showWait(const QString &name, std::optional<int> seconds,
                  const std::optional<DigestProgress> &digests);
    void stopWaiting();

    /// What the panes can do on command.
    void registerAt(CommandSet &commands);
    /// Adds what the pane that is shown offers.
    void describe(CommandState &state) const;
    /// The pane that is shown has something to copy.
    bool canCopy() const;
    void copy() const;

    ExtendedOutline &outline();
    ComparisonView &comparison();
    /// The row of that parameter in Extended, which is current, as `rowOfParameter` finds it.
    void showParameter(const QString &section, quint32 stream, const QString &key);
    ExtendedPane &extended() { return *_extended; }
    CustomPane &custom() { return *_custom; }

Q_SIGNALS:
    void openWanted();
    void showAllWanted();
    void cancelWalkWanted();
    void retryWanted();
    void preferencesWanted();
    void skipWanted();
    void selectionDidChange();
    /// The cover of the current file is to be opened.
    void coverOpened();
    /// Where the current file was recorded is to be shown.
    void locationOpened();
    /// What gives a person away is to be taken out of the current file.
    void stripWanted();
    void menuWanted(quorvin::CommandPlace place, const QPoint &globalPosition);
    /// A stream line leads to its group on that tab.
    void tabWanted(quorvin::Tab tab);

private:
    void connectPanes();
    /// Fonts, row heights, wrapping and alignment.
    void applySettings();
    /// Texts larger or smaller by that, from the size of the settings; 0 gives the usual size.
    void zoom(int step);
    void findNext(bool backwards);
    void showReport();
    /// Of the file that is shown; "" while nothing is known of it.
    void setPath(const QString &path);
    /// The pane to be looked at, as file and tab are.
    Pane *wantedPane() const;
    void showPage();

    LiveSettings &_settings;
    QStackedWidget *_pages;
    EmptyPane *_noFile;
    EmptyPane *_walk;
    EmptyPane *_nothingPasses;
    FailurePane *_failure;
    EmptyPane *_waiting;
    GeneralPane *_general;
    ExtendedPane *_extended;
    ComparisonPane *_comparison;
    CustomPane *_custom;
    const std::array<Pane *, 9> _panes; ///< all of these
    QPushButton *_skip;
    QString _path;
    Tab _tab = Tab::General;
    bool _hasFile = false;
    bool _isAllHidden = false;
    bool _hasFailed = false;
    bool _isWalking = false;
    bool _isWaiting = false;
    bool _isUnread = false;
    std::shared_ptr<const FileSum> _sum; ///< of the selected files; null when they are not several
};

} // namespace quorvin
