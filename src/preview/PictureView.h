// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Picture.h"
#include "platform/RegularFile.h"

#include <QFile>
#include <QImage>
#include <QMovie>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace quorvin {

/// A picture, as large as the view has room for it, and moving if it is one of several. Main thread.
class PictureView : public QWidget {
    Q_OBJECT
public:
    explicit PictureView(QWidget *parent = nullptr);

    /// A draft is shown as large as the picture will be, and followed by a wish for more pixels when it has
    /// too few.
    void setPicture(const Picture &picture, Picture::Detail detail = Picture::Detail::Full);
    /// Plays the pictures of the file in place of the one that is shown, if it can; its decoder runs here.
    void animate(RegularFile file);
    void clear();
    /// As it stands on the screen at the moment; null for none.
    QImage image() const;
    bool isMoving() const { return _movie != nullptr; }
    /// Pixels of the longer side that the view has room for.
    int wantedSide() const;

Q_SIGNALS:
    /// There is room for more pixels of the picture than it came with.
    void largerWanted(int side);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The file must outlive its reading.
    struct Movie {
        explicit Movie(RegularFile opened);

        RegularFile file;
        QFile device;
        QMovie frames;
    };

    bool hasRoomForMore() const;
    void wishLarger();

    QImage _image;
    int _fullSide = 0; ///< of the picture in the file
    bool _isCoarse = false; ///< it is a draft that has room for more pixels
    std::unique_ptr<Movie> _movie;
    QTimer _sizeTimer;
};

} // namespace quorvin
