// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonControls.h"

#include "shell/desktop/PlainText.h"
#include "shell/session/LiveSettings.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSlider>
#include <QStyleOptionToolButton>
#include <QToolButton>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kControlsMargin = 8;
constexpr int kSliderWidth = 110;

/// One of several, which is seen to be the chosen one in any palette.
class ChoiceButton final : public QToolButton {
protected:
    void initStyleOption(QStyleOptionToolButton *option) const override
    {
        QToolButton::initStyleOption(option);
        if (!isChecked())
            return;
        const QPalette &own = palette();
        option->palette.setColor(QPalette::Button, own.color(QPalette::Active, QPalette::Highlight));
        option->palette.setColor(QPalette::ButtonText,
                                 own.color(QPalette::Active, QPalette::HighlightedText));
    }
};

} // namespace

ComparisonControls::ComparisonControls(LiveSettings &settings, QWidget *parent)
    : QWidget(parent),
      _settings(settings),
      _highlight(new QCheckBox(tr("Di&m equal rows"))),
      _contrastSlider(new QSlider(Qt::Horizontal))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kControlsMargin, kControlsMargin / 2, kControlsMargin, kControlsMargin / 2);
    row->setSpacing(kControlsMargin);
    row->addWidget(makeFilters());
    row->addStretch();
    row->addWidget(_highlight);
    row->addWidget(_contrastSlider);
    _contrastSlider->setRange(0, kMostDimming);
    _contrastSlider->setPageStep(2);
    _contrastSlider->setFixedWidth(kSliderWidth);
    _contrastSlider->setAccessibleName(tr("How far equal rows are dimmed"));
    connectParts();
    settingDidChange(Setting::extComparisonHighlight);
    settingDidChange(Setting::extComparisonHighlightValue);
}

QWidget *ComparisonControls::makeFilters()
{
    auto *group = new QWidget;
    group->setAccessibleName(tr("Rows"));
    auto *row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    const auto add = [&](ComparisonFilter filter, const QString &text, const QString &tip) {
        auto *button = new ChoiceButton;
        button->setText(text);
        button->setToolTip(plainTip(tip));
        button->setCheckable(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setShortcut(QKeySequence::mnemonic(text));
        _filters.addButton(button, static_cast<int>(filter));
        row->addWidget(button);
    };
    add(ComparisonFilter::All, tr("&All"), tr("All rows"));
    add(ComparisonFilter::Different, tr("&Different"), tr("Rows in which some file differs"));
    add(ComparisonFilter::Equal, tr("E&qual"), tr("Rows with one value in all files"));
    _filters.button(_settings.integer(Setting::extComparisonRows))->setChecked(true);
    return group;
}

void ComparisonControls::connectParts()
{
    connect(&_filters, &QButtonGroup::idClicked, this, [this](int id) {
        _settings.set(Setting::extComparisonRows, id);
        Q_EMIT filterChosen(filter());
    });
    connect(_highlight, &QCheckBox::clicked, this,
            [this](bool isOn) { _settings.set(Setting::extComparisonHighlight, isOn); });
    connect(_contrastSlider, &QSlider::valueChanged, this,
            [this](int value) { _settings.set(Setting::extComparisonHighlightValue, value); });
    connect(&_settings, &LiveSettings::changed, this, &ComparisonControls::settingDidChange);
}

ComparisonFilter ComparisonControls::filter() const
{
    return static_cast<ComparisonFilter>(_filters.checkedId());
}

void ComparisonControls::setFilter(ComparisonFilter filter)
{
    _filters.button(static_cast<int>(filter))->setChecked(true);
    Q_EMIT filterChosen(filter);
}

void ComparisonControls::settingDidChange(Setting setting)
{
    if (setting == Setting::extComparisonHighlight) {
        const bool isOn = _settings.boolean(setting);
        _highlight->setChecked(isOn);
        _contrastSlider->setEnabled(isOn);
    } else if (setting == Setting::extComparisonHighlightValue) {
        const int value = std::min(_settings.integer(setting), kMostDimming);
        const QSignalBlocker quiet(_contrastSlider);
        _contrastSlider->setValue(value);
        _contrastSlider->setToolTip(plainTip(tr("%1%").arg(value * 10)));
    }
}

} // namespace quorvin
