// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/PictureView.h"

#include "pictures/WholePicture.h"
#include "preview/FittedImage.h"
#include "shell/desktop/AccessibleRole.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kLeastSide = 256; ///< pixels
constexpr int kRestMilliseconds = 200; ///< without another size or file, before a picture is decoded anew

int longerSide(QSize size)
{
    return std::max(size.width(), size.height());
}

} // namespace

PictureView::Movie::Movie(RegularFile opened) : file(std::move(opened))
{
    if (device.open(file.descriptor(), QIODevice::ReadOnly))
        frames.setDevice(&device);
}

PictureView::PictureView(QWidget *parent) : QWidget(parent)
{
    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(tr("Picture"));
    _sizeTimer.setSingleShot(true);
    _sizeTimer.setInterval(kRestMilliseconds);
    connect(&_sizeTimer, &QTimer::timeout, this, &PictureView::wishLarger);
}

void PictureView::setPicture(const Picture &picture, Picture::Detail detail)
{
    _image = imageOf(picture);
    _fullSide = std::max(picture.fullWidth, picture.fullHeight);
    _isCoarse = detail == Picture::Detail::Draft && hasRoomForMore();
    if (_isCoarse)
        _sizeTimer.start();
    update();
}

void PictureView::animate(RegularFile file)
{
    auto movie = std::make_unique<Movie>(std::move(file));
    if (!movie->frames.isValid())
        return;
    connect(&movie->frames, &QMovie::frameChanged, this, qOverload<>(&QWidget::update));
    movie->frames.start();
    _movie = std::move(movie);
}

void PictureView::clear()
{
    _movie.reset();
    _image = {};
    _fullSide = 0;
    _isCoarse = false;
    _sizeTimer.stop();
    update();
}

QImage PictureView::image() const
{
    const QImage frame = _movie ? _movie->frames.currentImage() : QImage();
    return frame.isNull() ? _image : frame;
}

int PictureView::wantedSide() const
{
    const auto side = static_cast<int>(longerSide(size()) * devicePixelRatioF());
    return std::clamp(side, kLeastSide, Picture::kMostSide);
}

void PictureView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintFitted(painter, image(), rect(), _isCoarse);
}

void PictureView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    _sizeTimer.start();
}

bool PictureView::hasRoomForMore() const
{
    return longerSide(_image.size()) < std::min(wantedSide(), _fullSide);
}

void PictureView::wishLarger()
{
    if (!_image.isNull() && !_movie && hasRoomForMore())
        Q_EMIT largerWanted(wantedSide());
}

} // namespace quorvin
