// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ReportText.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <stop_token>

namespace quorvin {

namespace {

constexpr int kNoPart = -1;

QStringView partAt(const QString &text, const std::vector<qsizetype> &parts, int part)
{
    const auto place = static_cast<std::size_t>(part);
    return QStringView(text).sliced(parts[place], parts[place + 1] - parts[place]);
}

/// The first part behind that one that has this, all the way round to itself.
int nextPartWith(const QString &text, const std::vector<qsizetype> &parts, int part, const QString &wanted,
                 bool backwards, const std::stop_token &stop)
{
    const int count = static_cast<int>(parts.size()) - 1;
    for (int step = 1; step <= count && !stop.stop_requested(); ++step) {
        const int next = (part + (backwards ? count - step : step)) % count;
        if (partAt(text, parts, next).contains(wanted, Qt::CaseInsensitive))
            return next;
    }
    return kNoPart;
}

} // namespace

ReportText::ReportText(QWidget *parent)
    : QWidget(parent), _parts{0, 0}, _view(new QPlainTextEdit), _strip(new QWidget), _place(plainLabel())
{
    _view->setReadOnly(true);
    _view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _view->setFrameShape(QFrame::NoFrame);
    auto *row = new QHBoxLayout(_strip);
    row->setContentsMargins(8, 4, 8, 4);
    _earlier = addButton(Qt::UpArrow, tr("Part before"), -1);
    _later = addButton(Qt::DownArrow, tr("Next part"), 1);
    row->addWidget(_place);
    row->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_view, 1);
    column->addWidget(_strip);
    _strip->hide();
}

QToolButton *ReportText::addButton(Qt::ArrowType arrow, const QString &name, int step)
{
    auto *button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRaise(true);
    button->setToolTip(plainTip(name));
    button->setAccessibleName(name);
    connect(button, &QToolButton::clicked, this, [this, step] { showPart(_part + step); });
    _strip->layout()->addWidget(button);
    return button;
}

std::vector<qsizetype> ReportText::partsOf(const QString &text)
{
    std::vector<qsizetype> parts{0};
    while (text.size() - parts.back() > kPartLength) {
        const qsizetype end = parts.back() + kPartLength;
        const qsizetype lineEnd = QStringView(text).sliced(parts.back(), kPartLength).lastIndexOf(u'\n');
        parts.push_back(lineEnd < 0 ? end : parts.back() + lineEnd + 1);
    }
    parts.push_back(text.size());
    return parts;
}

void ReportText::setText(const QString &text)
{
    _count.cancel();
    _find.cancel();
    _text = text;
    _parts = partsOf(_text);
    _strip->setVisible(_parts.size() > 2);
    showPart(0);
}

void ReportText::showPart(int part)
{
    _part = part;
    _view->setPlainText(partAt(_text, _parts, part).toString());
    const int count = static_cast<int>(_parts.size()) - 1;
    _place->setText(tr("Part %1 of %2").arg(groupedCount(part + 1), groupedCount(count)));
    _earlier->setEnabled(part > 0);
    _later->setEnabled(part + 1 < count);
}

void ReportText::count(const QString &wanted)
{
    if (wanted.isEmpty())
        return _count.cancel();
    _count.start(
        "CountInReport",
        [text = _text, wanted](const RunControl &) {
            return static_cast<int>(text.count(wanted, Qt::CaseInsensitive));
        },
        [this](int hits) { Q_EMIT counted(hits); });
}

void ReportText::find(const QString &wanted, bool backwards)
{
    const QTextDocument::FindFlags flags
        = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (wanted.isEmpty() || _view->find(wanted, flags))
        return;
    _find.start(
        "FindInReport",
        [text = _text, parts = _parts, part = _part, wanted, backwards](const RunControl &control) {
            return nextPartWith(text, parts, part, wanted, backwards, control.stop());
        },
        [this, wanted, backwards](int part) {
            if (part != kNoPart)
                selectIn(part, wanted, backwards);
        });
}

void ReportText::selectIn(int part, const QString &wanted, bool backwards)
{
    if (part != _part)
        showPart(part);
    _view->moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    _view->find(wanted, backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags());
}

void ReportText::setWrapsLines(bool wraps)
{
    _view->setLineWrapMode(wraps ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

} // namespace quorvin
