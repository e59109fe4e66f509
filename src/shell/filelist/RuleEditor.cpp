// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/RuleEditor.h"

#include "filter/RuleText.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/ConditionGroup.h"
#include "shell/filelist/RuleField.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kRulePauseMilliseconds = 250; ///< a list of many files is not searched for each letter

} // namespace

RuleEditor::RuleEditor(LiveSettings &settings, QWidget *parent)
    : QFrame(parent),
      _saved(settings),
      _conditions(new ConditionGroup(_names, ConditionGroup::Place::Outermost)),
      _text(new RuleField(_names)),
      _mistake(plainLabel()),
      _matches(plainLabel()),
      _savedNames(new QComboBox)
{
    setFrameShape(StyledPanel);
    setAutoFillBackground(true);
    setAccessibleName(tr("Filter rules"));
    _mistake->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    _mistake->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _mistake->hide();
    _matches->setForegroundRole(QPalette::PlaceholderText);
    layOut();
    _pause.setSingleShot(true);
    _pause.setInterval(kRulePauseMilliseconds);
    connect(_conditions, &ConditionGroup::changed, &_pause, qOverload<>(&QTimer::start));
    connect(&_pause, &QTimer::timeout, this, &RuleEditor::conditionsDidChange);
    connect(_text, &QLineEdit::textEdited, this, &RuleEditor::textDidChange);
    fillSaved();
}

void RuleEditor::layOut()
{
    auto *area = new QScrollArea;
    area->setFrameShape(NoFrame);
    area->setWidgetResizable(true);
    auto *inside = new QWidget;
    auto *conditions = new QVBoxLayout(inside);
    conditions->setContentsMargins(0, 0, 0, 0);
    conditions->addWidget(_conditions);
    conditions->addStretch();
    area->setWidget(inside);
    auto *end = new QHBoxLayout;
    end->addWidget(_matches, 1);
    auto *clearRule = new QPushButton(tr("C&lear"));
    auto *close = new QPushButton(tr("&Done"));
    end->addWidget(clearRule);
    end->addWidget(close);
    connect(clearRule, &QPushButton::clicked, this, &RuleEditor::clear);
    connect(close, &QPushButton::clicked, this, &RuleEditor::closeWanted);
    auto *column = new QVBoxLayout(this);
    column->setSpacing(8);
    column->addWidget(area, 1);
    column->addWidget(_text);
    column->addWidget(_mistake);
    column->addWidget(savedRow());
    column->addLayout(end);
}

QWidget *RuleEditor::savedRow()
{
    auto *widget = new QWidget;
    auto *row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    _savedNames->setEditable(true);
    _savedNames->setInsertPolicy(QComboBox::NoInsert);
    _savedNames->lineEdit()->setPlaceholderText(tr("Name of the rule"));
    setChoiceName(_savedNames, tr("Saved rules"));
    auto *save = new QPushButton(tr("&Save"));
    auto *forget = new QPushButton(tr("&Forget"));
    row->addWidget(_savedNames, 1);
    row->addWidget(save);
    row->addWidget(forget);
    connect(_savedNames, &QComboBox::textActivated, this, &RuleEditor::takeSaved);
    connect(save, &QPushButton::clicked, this, &RuleEditor::saveRule);
    connect(forget, &QPushButton::clicked, this, [this] {
        _saved.keep(_savedNames->currentText(), {});
        fillSaved();
    });
    return widget;
}

void RuleEditor::setRule(const Rule &rule)
{
    if (rule == _rule.simplified())
        return;
    _rule = rule;
    _pause.stop();
    _conditions->setRule(rule);
    _text->setText(textOfRule(rule));
    _mistake->hide();
}

void RuleEditor::conditionsDidChange()
{
    _rule = _conditions->rule();
    _text->setText(textOfRule(_rule));
    _mistake->hide();
    Q_EMIT ruleDidChange(_rule.simplified());
}

void RuleEditor::textDidChange()
{
    const auto rule = parseRule(_text->text());
    _mistake->setVisible(!rule);
    if (!rule) {
        _mistake->setText(rule.error().caretUnder(_text->text()) + u'\n' + rule.error().reason);
        return;
    }
    if (*rule == _rule.simplified())
        return;
    _pause.stop();
    _rule = *rule;
    _conditions->setRule(_rule);
    Q_EMIT ruleDidChange(_rule);
}

void RuleEditor::fillSaved()
{
    const QString name = _savedNames->currentText();
    _savedNames->clear();
    _savedNames->addItems(_saved.all().keys());
    _savedNames->setCurrentIndex(_savedNames->findText(name));
    if (_savedNames->currentIndex() < 0)
        _savedNames->clearEditText();
}

void RuleEditor::saveRule()
{
    const QString name = _savedNames->currentText().trimmed();
    const QString text = textOfRule(_conditions->rule());
    if (name.isEmpty())
        return _savedNames->setFocus();
    if (text.isEmpty())
        return;
    _saved.keep(name, text);
    fillSaved();
    _savedNames->setCurrentText(name);
}

void RuleEditor::takeSaved(const QString &name)
{
    const QString text = _saved.all().value(name);
    if (text.isEmpty())
        return;
    _text->setText(text);
    textDidChange();
}

void RuleEditor::clear()
{
    _pause.stop();
    _conditions->setRule({});
    conditionsDidChange();
}

void RuleEditor::setMatches(const QString &text)
{
    _matches->setText(text);
}

void RuleEditor::edit()
{
    _text->setFocus(Qt::ShortcutFocusReason);
}

void RuleEditor::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else
        QFrame::keyPressEvent(event);
}

} // namespace quorvin
