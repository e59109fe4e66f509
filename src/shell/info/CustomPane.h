// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/info/Pane.h"

#include <QElapsedTimer>
#include <QTimer>

class QComboBox;
class QLabel;
class QPushButton;

namespace quorvin {

class ExtSearchBar;
class LiveSettings;
class ReportText;

/// The Custom tab: what the libraries say of the file, as it comes, and what they say of the same facts side
/// by side. They are asked in a guarded process while the tab is looked at.
class CustomPane final : public Pane {
    Q_OBJECT
public:
    /// `settings` must outlive the pane, and their values the program's threads.
    explicit CustomPane(LiveSettings &settings, QWidget *parent = nullptr);

    /// Of the current file, whether it could be read or not; "" for none.
    void setPath(const QString &path);
    /// Chooses the report of that name, which is one of those offered.
    void showReport(const QString &source);
    /// A text is looked for in the report.
    bool isSearching() const;

    bool canCopy() const override;
    void copy() const override;
    void selectAll() override;
    void find() override;
    void findNext(bool backwards) override;
    void describe(CommandState &state) const override;

protected:
    void fill(const QuorvinData *record) override;
    void applyLook(const RowLook &look) override;

private:
    void layOut();
    void connectSearch();
    void ask();
    void take(const Expected<QString> &report);
    void cancel();
    /// How long it has been asked for.
    void showWait();
    void showState(const QString &text, const QString &action = {});
    void saveAs();
    void saveTo(const QString &path);

    LiveSettings &_settings;
    QString _path;
    QComboBox *_source;
    QLabel *_state;
    QPushButton *_action; ///< cancels, or asks again
    QPushButton *_wrap;
    QPushButton *_copy;
    QPushButton *_save;
    ExtSearchBar *_searchBar;
    ReportText *_report;
    QTimer _pause; ///< a step through the list asks for no file in passing
    QTimer _wait;
    QElapsedTimer _since;
    BackgroundRun<Expected<QString>> _run{this};
    BackgroundRun<Expected<void>> _saving{this};
};

} // namespace quorvin
