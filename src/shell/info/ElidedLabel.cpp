// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/ElidedLabel.h"

#include "shell/desktop/PlainText.h"

#include <QEvent>

namespace quorvin {

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent) : QLabel(parent), _mode(mode)
{
    setTextFormat(Qt::PlainText);
    setAlignment(alignedInWindow(Qt::AlignLeading | Qt::AlignVCenter));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setWholeText(const QString &text)
{
    _whole = text;
    setAccessibleName(text);
    fit();
    updateGeometry();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(_whole), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedLabel::fit()
{
    QString line = _whole;
    line.replace(u'\n', u' ');
    const QString shown = fontMetrics().elidedText(line, _mode, width());
    setText(shown);
    setToolTip(shown == _whole ? QString() : plainTip(_whole, *this));
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    fit();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        fit();
        updateGeometry();
    }
}

} // namespace quorvin
