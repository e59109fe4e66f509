// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QImage>
#include <QVideoFrame>
#include <QVideoSink>
#include <QWidget>

namespace quorvin {

/// The moving pictures of a medium, or what stands for it where it has none. Main thread.
class VideoView : public QWidget {
    Q_OBJECT
public:
    explicit VideoView(QWidget *parent = nullptr);

    /// Where a player puts its pictures.
    QVideoSink *sink() { return &_sink; }
    /// Shown until a moving picture comes.
    void setStill(const QImage &still);
    /// Forgets the pictures.
    void clear();
    bool hasFrame() const { return _frame.isValid(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QVideoSink _sink;
    QVideoFrame _frame;
    QImage _image; ///< of the frame; null until it was painted
    QImage _still;
};

} // namespace quorvin
