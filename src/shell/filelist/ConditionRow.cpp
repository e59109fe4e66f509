// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/ConditionRow.h"

#include "filter/RuleText.h"
#include "model/Quantity.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/PlainText.h"

#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include <array>
#include <utility>

namespace quorvin {

namespace {

using Kind = Rule::Kind;
using Comparison = Rule::Comparison;

constexpr std::array kKinds{
    std::pair{Kind::FileType, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "File Type")},
    std::pair{Kind::ParameterName, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "Parameter Name")},
    std::pair{Kind::ParameterValue, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "Parameter Value")},
    std::pair{Kind::Parameter, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "Parameter")},
    std::pair{Kind::Private, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "Gives a Person Away")},
    std::pair{Kind::Failed, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "Could Not Be Read")},
};

constexpr std::array kComparisons{
    std::pair{Comparison::Contains, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "contains")},
    std::pair{Comparison::Equal, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is")},
    std::pair{Comparison::NotEqual, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is not")},
    std::pair{Comparison::Less, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is less than")},
    std::pair{Comparison::LessOrEqual, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is at most")},
    std::pair{Comparison::Greater, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is more than")},
    std::pair{Comparison::GreaterOrEqual, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is at least")},
    std::pair{Comparison::Within, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is between")},
    std::pair{Comparison::Matches, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "matches the expression")},
    std::pair{Comparison::IsMissing, QT_TRANSLATE_NOOP("quorvin::ConditionRow", "is missing")},
};

QComboBox *comboOf(const QString &name)
{
    auto *combo = new QComboBox;
    setChoiceName(combo, name);
    return combo;
}

void select(QComboBox *combo, int value)
{
    combo->setCurrentIndex(combo->findData(value));
}

} // namespace

ConditionRow::ConditionRow(QAbstractItemModel &names, QWidget *parent)
    : QWidget(parent),
      _kind(comboOf(tr("What is compared"))),
      _parameter(new QLineEdit),
      _comparison(comboOf(tr("How it is compared"))),
      _fileType(comboOf(tr("File type"))),
      _value(new QLineEdit),
      _and(plainLabel(tr("and"))),
      _upTo(new QLineEdit)
{
    for (const auto &[kind, text] : kKinds)
        _kind->addItem(tr(text), static_cast<int>(kind));
    for (const QLatin1String type : kFileTypes)
        _fileType->addItem(tr(type.data()), QString(type));
    auto *completer = new QCompleter(&names, this);
    completer->setFilterMode(Qt::MatchContains);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    _parameter->setCompleter(completer);
    _parameter->setPlaceholderText(tr("Group/Name"));
    _parameter->setAccessibleName(tr("Parameter"));
    _value->setAccessibleName(tr("Value"));
    _value->setPlaceholderText(tr("Value"));
    _upTo->setAccessibleName(tr("Greatest value"));
    auto *remove = new QToolButton;
    remove->setText(QStringLiteral("\u2212"));
    remove->setAccessibleName(tr("Remove this condition"));
    remove->setToolTip(plainTip(tr("Remove this condition")));
    setAccessibleRole(this, QAccessible::Grouping);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    row->addWidget(_kind);
    row->addWidget(_parameter, 1);
    row->addWidget(_comparison);
    row->addWidget(_fileType);
    row->addWidget(_value, 1);
    row->addWidget(_and);
    row->addWidget(_upTo, 1);
    row->addStretch();
    row->addWidget(remove);
    connect(_kind, &QComboBox::currentIndexChanged, this, &ConditionRow::kindDidChange);
    connect(_comparison, &QComboBox::currentIndexChanged, this, &ConditionRow::comparisonDidChange);
    connect(_fileType, &QComboBox::currentIndexChanged, this, &ConditionRow::changed);
    connect(_parameter, &QLineEdit::textChanged, this, &ConditionRow::changed);
    for (const QLineEdit *field : {_value, _upTo})
        connect(field, &QLineEdit::textEdited, this, [this] {
            _isQuoted = false;
            Q_EMIT changed();
        });
    connect(remove, &QToolButton::clicked, this, &ConditionRow::removeWanted);
    setFocusProxy(_kind);
    kindDidChange();
}

Rule::Kind ConditionRow::kind() const
{
    return static_cast<Kind>(_kind->currentData().toInt());
}

Rule::Comparison ConditionRow::comparison() const
{
    return static_cast<Comparison>(_comparison->currentData().toInt());
}

void ConditionRow::kindDidChange()
{
    const int before = _comparison->count() > 0 ? _comparison->currentData().toInt() : -1;
    {
        const QSignalBlocker quiet(_comparison);
        _comparison->clear();
        for (const auto &[comparison, text] : kComparisons) {
            if (isAllowed(kind(), comparison))
                _comparison->addItem(tr(text), static_cast<int>(comparison));
        }
        _comparison->setCurrentIndex(std::max(_comparison->findData(before), 0));
    }
    _parameter->setVisible(kind() == Kind::Parameter);
    _comparison->setVisible(_comparison->count() > 0);
    _fileType->setVisible(kind() == Kind::FileType);
    comparisonDidChange();
}

void ConditionRow::comparisonDidChange()
{
    _isQuoted = false;
    const bool hasText = _comparison->count() > 0 && kind() != Kind::FileType;
    const bool isRange = hasText && comparison() == Comparison::Within;
    _value->setVisible(hasText && comparison() != Comparison::IsMissing);
    _and->setVisible(isRange);
    _upTo->setVisible(isRange);
    Q_EMIT changed();
}

void ConditionRow::setRule(const Rule &rule)
{
    const QSignalBlocker quiet(this);
    select(_kind, static_cast<int>(rule.kind));
    kindDidChange();
    select(_comparison, static_cast<int>(rule.comparison));
    comparisonDidChange();
    _parameter->setText(rule.parameter);
    _fileType->setCurrentIndex(std::max(_fileType->findData(rule.value.text), 0));
    _value->setText(rule.value.text);
    _upTo->setText(rule.upTo.text);
    _isQuoted = !rule.value.isQuantity;
}

RuleValue ConditionRow::valueOf(const QLineEdit &field) const
{
    const bool mayBeQuantity = kind() == Kind::Parameter && !_isQuoted && comparison() != Comparison::Contains
        && comparison() != Comparison::Matches;
    const QString text = field.text();
    return {text, mayBeQuantity && quantityOf(text).kind != QuantityKind::Text};
}

Rule ConditionRow::rule() const
{
    Rule rule{.kind = kind(), .comparison = comparison()};
    if (rule.isWord())
        return {.kind = rule.kind};
    if (rule.kind == Kind::FileType)
        return Rule::fileType(_fileType->currentData().toString(), rule.comparison);
    if (rule.kind == Kind::Parameter)
        rule.parameter = _parameter->text();
    if (rule.comparison != Comparison::IsMissing)
        rule.value = valueOf(*_value);
    if (rule.comparison == Comparison::Within)
        rule.upTo = valueOf(*_upTo);
    const bool hasValue = rule.comparison == Comparison::IsMissing || !rule.value.text.isEmpty();
    // What makes no rule as a text is not complete yet.
    const bool isComplete = hasValue && parseRule(textOfRule(rule)).has_value();
    return isComplete ? rule : Rule();
}

} // namespace quorvin
