// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "comparison/ComparisonFilter.h"
#include "platform/Settings.h"

#include <QButtonGroup>
#include <QWidget>

class QCheckBox;
class QSlider;

namespace quorvin {

class LiveSettings;

/// What stands over a comparison: which rows are shown, and how far those that are equal in all files stand
/// back. Starts from the settings, follows those of the dimming, and keeps what is chosen there. Main thread.
class ComparisonControls final : public QWidget {
    Q_OBJECT
public:
    /// Equal rows can be dimmed in so many steps, of a tenth each.
    static constexpr int kMostDimming = 10;

    /// `settings` must outlive this object.
    explicit ComparisonControls(LiveSettings &settings, QWidget *parent = nullptr);

    ComparisonFilter filter() const;
    /// As a click on it, but for this time alone.
    void setFilter(ComparisonFilter filter);

Q_SIGNALS:
    void filterChosen(quorvin::ComparisonFilter filter);

private:
    QWidget *makeFilters();
    void connectParts();
    void settingDidChange(Setting setting);

    LiveSettings &_settings;
    QButtonGroup _filters;
    QCheckBox *_highlight;
    QSlider *_contrastSlider;
};

} // namespace quorvin
