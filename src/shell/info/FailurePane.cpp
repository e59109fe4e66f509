// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/FailurePane.h"

#include "platform/NativePath.h"
#include "shell/desktop/PlainText.h"
#include "shell/desktop/SymbolView.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/FailureAdvice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kSpace = 8;
constexpr int kWarningSide = 48;
constexpr int kMostWidth = 560; ///< of the text; a longer line is hard to read

QLabel *wrappedLabel()
{
    QLabel *label = plainLabel();
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

FailurePane::FailurePane(QWidget *parent)
    : Pane(parent),
      _name(new ElidedLabel(Qt::ElideMiddle)),
      _folder(new ElidedLabel(Qt::ElideMiddle)),
      _sentence(wrappedLabel()),
      _limit(wrappedLabel()),
      _retry(new QPushButton(tr("&Try Again"))),
      _preferences(new QPushButton(tr("&Preferences…"))),
      _report(new QPushButton(tr("&Raw Report…")))
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    _folder->setForegroundRole(QPalette::PlaceholderText);
    _limit->setForegroundRole(QPalette::PlaceholderText);
    _report->setToolTip(plainTip(tr("What the libraries say of the file, as it comes")));
    layOut();
    connect(_retry, &QPushButton::clicked, this, &FailurePane::retryWanted);
    connect(_preferences, &QPushButton::clicked, this, &FailurePane::preferencesWanted);
    connect(_report, &QPushButton::clicked, this, &FailurePane::reportWanted);
}

void FailurePane::layOut()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(kSpace);
    for (QPushButton *button : {_retry, _report, _preferences})
        buttons->addWidget(button);
    buttons->addStretch();

    auto *text = new QVBoxLayout;
    text->setSpacing(kSpace / 2);
    text->addWidget(_name);
    text->addWidget(_folder);
    text->addSpacing(kSpace);
    text->addWidget(_sentence);
    text->addWidget(_limit);
    text->addSpacing(2 * kSpace);
    text->addLayout(buttons);
    text->addStretch();
    auto *column = new QWidget;
    column->setLayout(text);
    column->setMaximumWidth(kMostWidth);
    text->setContentsMargins(0, 0, 0, 0);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(2 * kSpace, 2 * kSpace, 2 * kSpace, 2 * kSpace);
    row->setSpacing(2 * kSpace);
    row->addWidget(new SymbolView(QStringLiteral("dialog-warning"), kWarningSide), 0, Qt::AlignTop);
    row->addWidget(column, 1);
    row->addStretch();
}

void FailurePane::setFailure(const QString &path, const FailureAdvice &advice)
{
    _name->setWholeText(lastPathComponent(path));
    _folder->setWholeText(withoutLastPathComponent(path));
    _sentence->setText(advice.sentence);
    _limit->setText(advice.limit);
    _limit->setVisible(!advice.limit.isEmpty());
    _preferences->setVisible(!advice.limit.isEmpty());
    _report->setVisible(advice.mayHaveReport);
}

void FailurePane::applyLook(const RowLook &look)
{
    setFont(look.font);
    _name->setFont(look.headlineFont());
}

} // namespace quorvin
