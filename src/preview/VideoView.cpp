// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/VideoView.h"

#include "preview/FittedImage.h"
#include "shell/desktop/AccessibleRole.h"

#include <QPainter>

namespace quorvin {

VideoView::VideoView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(tr("Moving picture"));
    // They come faster than they can be painted: only the last one before a paint is converted.
    connect(&_sink, &QVideoSink::videoFrameChanged, this, [this](const QVideoFrame &frame) {
        if (!frame.isValid())
            return;
        _frame = frame;
        _image = {};
        update();
    });
}

void VideoView::setStill(const QImage &still)
{
    _still = still;
    update();
}

void VideoView::clear()
{
    _frame = {};
    _image = {};
    _still = {};
    update();
}

void VideoView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    if (!_frame.isValid())
        return paintFitted(painter, _still, rect(), false);
    if (_image.isNull())
        _image = _frame.toImage();
    painter.fillRect(rect(), Qt::black);
    paintFitted(painter, _image, rect(), true);
}

} // namespace quorvin
