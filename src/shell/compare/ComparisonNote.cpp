// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonNote.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>

namespace quorvin {

namespace {

constexpr int kNoteMargin = 8;
constexpr float kFrameAlpha = 0.15F;

} // namespace

ComparisonNote::ComparisonNote(QWidget *parent)
    : QWidget(parent),
      _text(plainLabel()),
      _closed(new QPushButton(tr("&Show Closed Columns"))),
      _preferences(new QPushButton(tr("&Preferences…")))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(kNoteMargin, kNoteMargin / 2, kNoteMargin, kNoteMargin / 2);
    row->setSpacing(kNoteMargin);
    _text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    _text->setWordWrap(true);
    row->addWidget(_text, 1);
    row->addWidget(_closed);
    row->addWidget(_preferences);
    connect(_closed, &QPushButton::clicked, this, &ComparisonNote::closedWanted);
    connect(_preferences, &QPushButton::clicked, this, &ComparisonNote::preferencesWanted);
    hide();
}

void ComparisonNote::setCounts(const ComparedCounts &counts)
{
    const qsizetype beyond = counts.all - counts.shown - counts.closed;
    QString text = tr("%1 of %2 files").arg(groupedCount(counts.shown), groupedCount(counts.all));
    if (counts.closed > 0)
        text += tr("; %1 closed").arg(groupedCount(counts.closed));
    if (beyond > 0)
        text += tr("; how many stand side by side at most is set in the preferences");
    _text->setText(text);
    _closed->setVisible(counts.closed > 0);
    _preferences->setVisible(beyond > 0);
    setVisible(counts.shown < counts.all);
}

void ComparisonNote::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(kFrameAlpha);
    painter.fillRect(0, 0, width(), 1, line);
}

} // namespace quorvin
