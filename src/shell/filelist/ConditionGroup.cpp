// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ConditionGroup.h"

#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/ConditionRow.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kPartIndent = 20;

} // namespace

ConditionGroup::ConditionGroup(QAbstractItemModel &names, Place place, QWidget *parent)
    : QWidget(parent), _names(names), _mode(new QComboBox), _parts(new QVBoxLayout)
{
    setChoiceName(_mode, tr("How many of the conditions have to hold"));
    for (const QString &text : {tr("All"), tr("Any"), tr("None"), tr("Not all")})
        _mode->addItem(text);
    auto *head = new QHBoxLayout;
    head->setSpacing(4);
    head->addWidget(_mode);
    head->addWidget(plainLabel(tr("of the following that match")), 1);
    addButton(head, QStringLiteral("+"), tr("Add a condition"), &ConditionGroup::addCondition);
    addButton(head, QStringLiteral("+ ( )"), tr("Add a group of conditions"), &ConditionGroup::addGroup);
    if (place == Place::Within)
        addButton(head, QStringLiteral("\u2212"), tr("Remove this group"), &ConditionGroup::removeWanted);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(head);
    _parts->setContentsMargins(kPartIndent, 0, 0, 0);
    _parts->setSpacing(4);
    column->addLayout(_parts);
    connect(_mode, &QComboBox::currentIndexChanged, this, &ConditionGroup::changed);
}

void ConditionGroup::addButton(QHBoxLayout *row, const QString &text, const QString &name,
                               void (ConditionGroup::*clicked)()) const
{
    auto *button = new QToolButton;
    button->setText(text);
    button->setAccessibleName(name);
    button->setToolTip(plainTip(name));
    connect(button, &QToolButton::clicked, this, clicked);
    row->addWidget(button);
}

void ConditionGroup::addCondition()
{
    addPart(Rule::anyParameter(Rule::Kind::ParameterValue, Rule::Comparison::Contains, {}));
    _parts->itemAt(_parts->count() - 1)->widget()->setFocus();
    Q_EMIT changed();
}

void ConditionGroup::addGroup()
{
    addPart(Rule::any({Rule::anyParameter(Rule::Kind::ParameterValue, Rule::Comparison::Contains, {})}));
    Q_EMIT changed();
}

void ConditionGroup::addPart(const Rule &part)
{
    const auto take = [this, &part](auto *widget) {
        using Widget = std::remove_pointer_t<decltype(widget)>;
        widget->setRule(part);
        connect(widget, &Widget::changed, this, &ConditionGroup::changed);
        connect(widget, &Widget::removeWanted, this, [this, widget] { removePart(widget); });
        _parts->addWidget(widget);
    };
    if (part.isGroup() || part.kind == Rule::Kind::Not)
        take(new ConditionGroup(_names, Place::Within));
    else
        take(new ConditionRow(_names));
}

void ConditionGroup::removePart(QWidget *part)
{
    _parts->removeWidget(part);
    part->hide();
    // Its button was just pressed.
    part->deleteLater();
    Q_EMIT changed();
}

void ConditionGroup::setRule(const Rule &rule)
{
    const QSignalBlocker quiet(this);
    while (_parts->count() > 0)
        removePart(_parts->itemAt(0)->widget());
    const bool isNegated = rule.kind == Rule::Kind::Not;
    const Rule &inner = isNegated ? rule.parts.front() : rule;
    const bool isAll = inner.kind == Rule::Kind::All;
    if (isNegated)
        _mode->setCurrentIndex(isAll ? NotAll : None);
    else
        _mode->setCurrentIndex(inner.kind == Rule::Kind::Any ? Any : All);
    if (!inner.isGroup())
        return addPart(inner);
    for (const Rule &part : inner.parts)
        addPart(part);
}

Rule ConditionGroup::rule() const
{
    std::vector<Rule> parts;
    for (int i = 0; i < _parts->count(); ++i) {
        const QWidget *widget = _parts->itemAt(i)->widget();
        const auto *group = qobject_cast<const ConditionGroup *>(widget);
        Rule part = group ? group->rule() : static_cast<const ConditionRow *>(widget)->rule();
        if (!part.isEmpty())
            parts.push_back(std::move(part));
    }
    if (parts.empty())
        return {};
    const int mode = _mode->currentIndex();
    Rule rule = mode == All || mode == NotAll ? Rule::all(std::move(parts)) : Rule::any(std::move(parts));
    return mode == None || mode == NotAll ? Rule::negated(std::move(rule)) : rule;
}

} // namespace quorvin
