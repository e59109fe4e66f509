// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QVariantAnimation>
#include <QWidget>

class QToolButton;

namespace quorvin {

/// A part of a panel that can be closed: a header with its title, which opens and closes it, and the content
/// below. It stands in a `QuickInfoStack`, which gives it its place. Device-independent pixels. Main thread.
class QuickInfoView final : public QWidget {
    Q_OBJECT
public:
    /// All that a closed one takes; more where the font needs it.
    static constexpr int kHeaderHeight = 28;
    static constexpr int kContentGap = 10; ///< above and below the content together

    /// Takes the content over. `title` tells screen readers too what is opened.
    QuickInfoView(const QString &title, QWidget *content, QWidget *parent = nullptr);

    void setTitle(const QString &title);
    bool isOpen() const { return _isOpen; }
    /// At once.
    void setOpen(bool open);
    /// As the user does it: animated where the desktop wants that.
    void toggleContent();
    /// It is on its way to be open or closed.
    bool isToggling() const { return _animation.state() == QAbstractAnimation::Running; }

    /// What it takes now.
    int panelHeight() const { return _panelHeight; }
    /// The room for the content; a closed view opens to it.
    void setContentHeight(int height);

Q_SIGNALS:
    /// Those below it have to move.
    void panelHeightDidChange();
    /// The user has opened or closed it.
    void toggled(bool isOpen);

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int headerHeight() const;
    int goalHeight() const;
    void setPanelHeight(int height);
    void measureContent();
    void show(bool isOpen);

    QToolButton *_disclosure;
    QWidget *_content;
    QVariantAnimation _animation;
    int _contentHeight = 0;
    int _panelHeight = 0;
    bool _isOpen = true;
};

} // namespace quorvin
