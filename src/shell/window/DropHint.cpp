// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/DropHint.h"

namespace quorvin {

namespace {

constexpr int kHintPadding = 8;
constexpr int kHintLift = 40; ///< clear of the status line

} // namespace

DropHint::DropHint(QWidget *over) : QLabel(over)
{
    setTextFormat(Qt::PlainText);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setFrameShape(QFrame::Box);
    setWordWrap(true);
    setAlignment(Qt::AlignCenter);
    setMargin(kHintPadding);
    hide();
}

void DropHint::tell(const QString &hint)
{
    if (hint.isEmpty())
        return hide();
    setText(hint);
    const int room = parentWidget()->width() - 2 * kHintPadding;
    const int width = std::min(fontMetrics().horizontalAdvance(hint) + 4 * kHintPadding, room);
    resize(width, heightForWidth(width));
    move((parentWidget()->width() - width) / 2, parentWidget()->height() - height() - kHintLift);
    raise();
    show();
}

} // namespace quorvin
