// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/SidebarSplitView.h"

#include "shell/desktop/AccessibleRole.h"

#include <QMouseEvent>
#include <QResizeEvent>
#include <QStyle>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kAnimationMilliseconds = 250;

} // namespace

/// The place of the sidebar. While it opens or closes, the sidebar keeps its width and slides past the edge
/// of the window with the divider.
class SlidingRoom final : public QWidget {
public:
    explicit SlidingRoom(QWidget *sidebar) : _sidebar(sidebar)
    {
        sidebar->setParent(this);
        setMinimumWidth(SidebarSplitView::kSidebarMinWidth);
    }

    /// 0: the sidebar is as wide as its room again.
    void holdWidth(int width)
    {
        _heldWidth = width;
        setMinimumWidth(width > 0 ? 0 : SidebarSplitView::kSidebarMinWidth);
        placeSidebar();
    }
    void setDividerAtRight(bool isAtRight) { _dividerIsAtRight = isAtRight; }

    QSize minimumSizeHint() const override { return {0, _sidebar->minimumSizeHint().height()}; }
    QSize sizeHint() const override { return _sidebar->sizeHint(); }

protected:
    void resizeEvent(QResizeEvent *) override { placeSidebar(); }

private:
    void placeSidebar()
    {
        QRect place(0, 0, std::max(_heldWidth, width()), height());
        if (_dividerIsAtRight)
            place.moveRight(width() - 1);
        _sidebar->setGeometry(place);
    }

    QWidget *_sidebar;
    int _heldWidth = 0;
    bool _dividerIsAtRight = true;
};

class SidebarSplitView::Handle final : public QSplitterHandle {
public:
    explicit Handle(SidebarSplitView *view) : QSplitterHandle(view->orientation(), view), _view(view)
    {
        setAccessibleRole(this, QAccessible::Splitter);
        setAccessibleName(SidebarSplitView::tr("Divider of the file list"));
    }

protected:
    void mouseDoubleClickEvent(QMouseEvent *event) override
    {
        if (event->button() == Qt::LeftButton)
            _view->closeByHand();
    }
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        QSplitterHandle::mouseReleaseEvent(event);
        if (event->button() == Qt::LeftButton)
            _view->dragDidEnd();
    }

private:
    SidebarSplitView *_view;
};

SidebarSplitView::SidebarSplitView(QWidget *sidebar, QWidget *content, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent), _sidebar(sidebar), _room(new SlidingRoom(sidebar)), _content(content)
{
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleRole(_room, QAccessible::Grouping);
    addWidget(_room);
    addWidget(content);
    // Readers go by this order.
    _room->raise();
    handle(1)->raise();
    content->raise();
    setCollapsible(indexOf(content), false);
    setHandleWidth(1);
    content->setMinimumWidth(kContentMinWidth);
    setMinimumWidth(kSidebarMinWidth + kContentMinWidth + handleWidth());
    setStretchFactor(indexOf(content), 1);
    setStretchFactor(indexOf(_room), 0);
    _animation.setDuration(kAnimationMilliseconds);
    _animation.setEasingCurve(QEasingCurve::InOutCubic);
    connect(&_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { place(value.toInt()); });
    connect(&_animation, &QVariantAnimation::finished, this, [this] { setCollapsed(_isCollapsed); });
    connect(this, &QSplitter::splitterMoved, this, &SidebarSplitView::rememberWidth);
}

QSplitterHandle *SidebarSplitView::createHandle()
{
    return new Handle(this);
}

void SidebarSplitView::toggleSidebar()
{
    if (_isCollapsed)
        showSidebar();
    else
        hideSidebar();
}

void SidebarSplitView::showSidebar()
{
    if (_isCollapsed)
        animateTo(std::min(_lastSidebarWidth, sidebarMaxWidth()), false);
}

void SidebarSplitView::hideSidebar()
{
    if (!_isCollapsed)
        animateTo(0, true);
}

void SidebarSplitView::showSidebarWithoutAnimation()
{
    if (_isCollapsed)
        setCollapsed(false);
}

void SidebarSplitView::hideSidebarWithoutAnimation()
{
    if (!_isCollapsed)
        setCollapsed(true);
}

void SidebarSplitView::animateTo(int sidebarWidth, bool collapsed)
{
    if (!isVisible() || style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0)
        return setCollapsed(collapsed);
    const int from = _room->isVisible() ? placedWidth() : 0;
    _isCollapsed = collapsed;
    _animation.stop();
    _room->setDividerAtRight((_sidebarViewIndex == 0) != isRightToLeft());
    _room->holdWidth(std::max(from, sidebarWidth));
    _room->show();
    _animation.setStartValue(from);
    _animation.setEndValue(sidebarWidth);
    _animation.start();
    Q_EMIT collapsedChanged(collapsed);
}

void SidebarSplitView::setCollapsed(bool collapsed)
{
    _animation.stop();
    const bool changed = _isCollapsed != collapsed;
    _isCollapsed = collapsed;
    _room->setVisible(!collapsed);
    _room->holdWidth(0);
    if (!collapsed) {
        _lastSidebarWidth = std::min(_lastSidebarWidth, sidebarMaxWidth());
        place(_lastSidebarWidth);
    }
    if (changed)
        Q_EMIT collapsedChanged(collapsed);
}

int SidebarSplitView::sidebarMaxWidth() const
{
    return std::max(width() - kContentMinWidth - handleWidth(), kSidebarMinWidth);
}

void SidebarSplitView::setSidebarWidth(double width)
{
    const double allowed = std::clamp<double>(width, kSidebarMinWidth, sidebarMaxWidth());
    _lastSidebarWidth = static_cast<int>(allowed);
    if (!_isCollapsed)
        place(_lastSidebarWidth);
}

void SidebarSplitView::widen(int by)
{
    if (!_isCollapsed)
        setSidebarWidth(_lastSidebarWidth + by);
}

void SidebarSplitView::setSidebarPosition(int position)
{
    if ((position != 0 && position != 1) || position == _sidebarViewIndex)
        return;
    _sidebarViewIndex = position;
    insertWidget(position, _room);
    _room->setVisible(!_isCollapsed);
    if (!_isCollapsed)
        place(_lastSidebarWidth);
}

void SidebarSplitView::place(int sidebarWidth)
{
    const int rest = width() - sidebarWidth - handleWidth();
    setSizes(_sidebarViewIndex == 0 ? QList{sidebarWidth, rest} : QList{rest, sidebarWidth});
}

int SidebarSplitView::placedWidth() const
{
    return sizes().value(indexOf(_room));
}

void SidebarSplitView::rememberWidth()
{
    // A drag that ends in closing it leaves the width to come back with.
    if (!_isCollapsed && _animation.state() != QAbstractAnimation::Running && placedWidth() > 0)
        _lastSidebarWidth = placedWidth();
}

void SidebarSplitView::dragDidEnd()
{
    if (_isCollapsed || placedWidth() > 0)
        return;
    Q_EMIT closedByHand();
    setCollapsed(true);
}

void SidebarSplitView::closeByHand()
{
    if (_isCollapsed)
        return;
    Q_EMIT closedByHand();
    hideSidebar();
}

void SidebarSplitView::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    if (_isCollapsed || _animation.state() == QAbstractAnimation::Running)
        return;
    // What grows is the content; a window that gets too narrow for it takes from the sidebar.
    _lastSidebarWidth = std::min(_lastSidebarWidth, sidebarMaxWidth());
    place(_lastSidebarWidth);
}

} // namespace quorvin
