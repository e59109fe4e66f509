// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/RuleField.h"

#include "filter/RuleCompletion.h"

#include <QAbstractItemView>
#include <QCompleter>

namespace quorvin {

RuleField::RuleField(const QStringListModel &names, QWidget *parent)
    : QLineEdit(parent), _names(names), _completer(new QCompleter(&_words, this))
{
    setAccessibleName(tr("Rule as text"));
    setPlaceholderText(tr("[Video/Width] >= 1920 AND fileType = 'Video'"));
    _completer->setWidget(this);
    _completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    connect(_completer, qOverload<const QString &>(&QCompleter::activated), this, &RuleField::take);
    connect(this, &QLineEdit::textEdited, this, &RuleField::offer);
}

void RuleField::showEvent(QShowEvent *event)
{
    // Not before: a window opens without its rules.
    setClearButtonEnabled(true);
    QLineEdit::showEvent(event);
}

void RuleField::offer()
{
    const RuleCompletion completion = completeRule(text(), cursorPosition(), _names.stringList());
    _words.setStringList(completion.words);
    // What stands there already need not be offered.
    const bool isWhole = completion.words == QStringList{text().mid(completion.position, completion.length)};
    if (completion.words.isEmpty() || isWhole)
        _completer->popup()->hide();
    else
        _completer->complete();
}

void RuleField::take(const QString &word)
{
    const RuleCompletion completion = completeRule(text(), cursorPosition(), _names.stringList());
    QString whole = text();
    whole.replace(completion.position, completion.length, word);
    setText(whole);
    setCursorPosition(static_cast<int>(completion.position + word.size()));
    Q_EMIT textEdited(whole);
}

} // namespace quorvin
