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

/// A double click collapses the sidebar.
class Handle final : public QSplitterHandle {
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
            _view->hideSidebar();
    }

private:
    SidebarSplitView *_view;
};

} // namespace

SidebarSplitView::SidebarSplitView(QWidget *sidebar, QWidget *content, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent), _sidebar(sidebar), _content(content)
{
    setAccessibleRole(this, QAccessible::Grouping);
    addWidget(sidebar);
    addWidget(content);
    // Readers go by this order.
    sidebar->raise();
    handle(1)->raise();
    content->raise();
    setChildrenCollapsible(false);
    setHandleWidth(1);
    sidebar->setMinimumWidth(kSidebarMinWidth);
    content->setMinimumWidth(kContentMinWidth);
    setMinimumWidth(kSidebarMinWidth + kContentMinWidth + handleWidth());
    setStretchFactor(indexOf(content), 1);
    setStretchFactor(indexOf(sidebar), 0);
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
    const int from = _sidebar->isVisible() ? _sidebar->width() : 0;
    _isCollapsed = collapsed;
    _sidebar->setMinimumWidth(0);
    _sidebar->show();
    _animation.stop();
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
    _sidebar->setVisible(!collapsed);
    _sidebar->setMinimumWidth(kSidebarMinWidth);
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

void SidebarSplitView::setSidebarPosition(int position)
{
    if ((position != 0 && position != 1) || position == _sidebarViewIndex)
        return;
    _sidebarViewIndex = position;
    insertWidget(position, _sidebar);
    _sidebar->setVisible(!_isCollapsed);
    if (!_isCollapsed)
        place(_lastSidebarWidth);
}

void SidebarSplitView::place(int sidebarWidth)
{
    const int rest = width() - sidebarWidth - handleWidth();
    setSizes(_sidebarViewIndex == 0 ? QList{sidebarWidth, rest} : QList{rest, sidebarWidth});
}

void SidebarSplitView::rememberWidth()
{
    if (!_isCollapsed && _animation.state() != QAbstractAnimation::Running)
        _lastSidebarWidth = _sidebar->width();
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
