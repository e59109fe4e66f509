// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"
#include "shell/outline/WatchedParameter.h"

#include <optional>

namespace quorvin {

class ExtendedOutline;
class ExtSearchBar;
class LiveSettings;
class WatchStrip;

/// The Extended tab: all parameters of the file as a tree, or those that have the text in the bar over it.
class ExtendedPane final : public Pane {
    Q_OBJECT
public:
    /// `settings` must outlive the pane.
    explicit ExtendedPane(LiveSettings &settings, QWidget *parent = nullptr);

    ExtendedOutline &outline() { return *_outline; }
    /// Selects the group of that stream and gives the tree the keyboard. The pane is current.
    void showGroup(const QString &key, quint64 streamIndex);
    /// The same for the row of that parameter, as `rowOfParameter` finds it.
    void showParameter(const QString &section, quint32 stream, const QString &key);

    const WatchedParameters &watched() const;
    /// From now on these are watched in this window, and those of the settings in all others; or again as in
    /// all others.
    void watchForWindow(const WatchedParameters &parameters);
    void watchForAll();

    /// The text whose places are marked and walked: that in the bar while it is open, else the one that all
    /// files are searched for.
    QString searchText() const;
    /// What all files are searched for; "" for nothing.
    void setGlobalSearch(const QString &text);
    /// Selects the first parameter that has the text, or the last one. False without one.
    bool selectEndHit(bool backwards);

    bool canCopy() const override;
    void copy() const override;
    void copyValues() const override;
    void selectAll() override;
    void find() override;
    void findNext(bool backwards) override;
    void describe(CommandState &state) const override;
    void registerAt(CommandSet &commands) override;

Q_SIGNALS:
    /// Hits of this file are at an end: the next one is in another file.
    void otherFileWanted(bool backwards);

protected:
    void fill(const QuorvinData *record) override;
    void applyLook(const RowLook &look) override;

private:
    void hideExtSearchBar();
    /// The selected parameter is watched from now on, or no more.
    void toggleWatch();
    void unwatch(int index);
    /// As settings have them, or the window.
    void showWatched();
    void setWatched(const WatchedParameters &parameters);
    void fillWatched(const QuorvinData *record);

    LiveSettings &_settings;
    ExtSearchBar *_searchBar;
    WatchStrip *_watched;
    std::optional<WatchedParameters> _ownWatched; ///< of this window alone
    ExtendedOutline *_outline;
    QString _globalSearch;
    QString _path; ///< of the file whose tree is shown; "" for none
};

} // namespace quorvin
