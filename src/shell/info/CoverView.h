// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QIcon>
#include <QImage>
#include <QWidget>

namespace quorvin {

/// The cover of the current file, or what stands for its kind. Scaled down to fit, never up. Takes the
/// keyboard while it shows any of them.
class CoverView : public QWidget {
    Q_OBJECT
public:
    /// Device-independent pixels.
    static constexpr int kSide = 256;

    explicit CoverView(QWidget *parent = nullptr);

    void clear();
    void setIcon(const QIcon &icon);
    void setCoverImage(const QImage &image);
    bool isCoverFromFile() const { return !_image.isNull(); }
    /// Null while there is none.
    const QImage &coverImage() const { return _image; }
    /// The size at which an image of that size is drawn in a room of that size.
    static QSize fittedSize(const QSize &image, const QSize &room);

    QSize sizeHint() const override { return {kSide, kSide}; }

Q_SIGNALS:
    /// By a double click, Return or Space.
    void opened();
    /// There is a cover now, or there is none any more.
    void coverDidChange();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool isEmpty() const { return _icon.isNull() && _image.isNull(); }
    void showPicture(const QIcon &icon, const QImage &image, const QString &name);
    /// Where the picture is drawn.
    QRect place() const;

    QIcon _icon;
    QImage _image;
};

} // namespace quorvin
