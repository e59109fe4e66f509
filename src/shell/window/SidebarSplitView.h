// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QSplitter>
#include <QVariantAnimation>

namespace quorvin {

class SlidingRoom;

/// Splits a window into the sidebar and the content: limits of both widths, the side on which the sidebar
/// stands, and collapsing with and without animation. The divider can be dragged; dragged far beyond the
/// least width, or clicked twice, it closes the sidebar. Widths are in device-independent pixels.
class SidebarSplitView : public QSplitter {
    Q_OBJECT
public:
    static constexpr int kSidebarMinWidth = 160;
    static constexpr int kContentMinWidth = 350;

    /// Takes both views over.
    SidebarSplitView(QWidget *sidebar, QWidget *content, QWidget *parent = nullptr);

    QWidget *sidebarView() const { return _sidebar; }
    QWidget *contentView() const { return _content; }

    bool isCollapsed() const { return _isCollapsed; }
    void toggleSidebar();
    /// Animated, unless animation is switched off or the view is not on the screen.
    void showSidebar();
    void hideSidebar();
    void showSidebarWithoutAnimation();
    void hideSidebarWithoutAnimation();

    /// The width that the sidebar has, or comes back with.
    int sidebarWidth() const { return _lastSidebarWidth; }
    int sidebarMaxWidth() const;
    /// Clipped to what is allowed.
    void setSidebarWidth(double width);
    /// By so much, within what is allowed; nothing while it is collapsed.
    void widen(int by);

    /// 0 left, 1 right; in a right-to-left layout the other way round.
    int sidebarPosition() const { return _sidebarViewIndex; }
    /// Does nothing for any other position.
    void setSidebarPosition(int position);

Q_SIGNALS:
    void collapsedChanged(bool collapsed);
    /// The user has closed it at its divider, and not by a command; comes before `collapsedChanged`.
    void closedByHand();

protected:
    void resizeEvent(QResizeEvent *event) override;
    QSplitterHandle *createHandle() override;

private:
    class Handle;

    void place(int sidebarWidth);
    void setCollapsed(bool collapsed);
    void animateTo(int sidebarWidth, bool collapsed);
    void rememberWidth();
    /// The button that dragged the divider, or clicked it twice, is up.
    void dragDidEnd();
    void closeByHand();
    /// As it is placed now, whatever it comes back with.
    int placedWidth() const;

    QWidget *_sidebar;
    SlidingRoom *_room; ///< what the divider moves; holds the sidebar
    QWidget *_content;
    QVariantAnimation _animation;
    int _lastSidebarWidth = kSidebarMinWidth;
    int _sidebarViewIndex = 0;
    bool _isCollapsed = false;
};

} // namespace quorvin
