// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/info/Pane.h"

class QStackedLayout;

namespace quorvin {

class ComparisonView;
class EmptyPane;
class LiveSettings;

/// The Comparison tab: all files of the list side by side, whatever the current one is.
class ComparisonPane final : public Pane {
    Q_OBJECT
public:
    /// `settings` must outlive the pane.
    explicit ComparisonPane(LiveSettings &settings, QWidget *parent = nullptr);

    ComparisonView &view() { return *_view; }

    bool canCopy() const override;
    void copy() const override;
    void selectAll() override;
    void openCurrent() override;
    void find() override;
    void findNext(bool backward) override;
    void describe(CommandState &state) const override;
    void registerAt(CommandSet &commands) override;

protected:
    void fill(const QuorvinData *) override { }
    void applyLook(const RowLook &look) override;
    void showEvent(QShowEvent *event) override;

private:
    void choosePage();

    ComparisonView *_view;
    EmptyPane *_empty;
    QStackedLayout *_pages;
};

} // namespace quorvin
