// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/QuickInfoView.h"

#include <QKeyEvent>
#include <QLayout>
#include <QStyle>
#include <QToolButton>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kToggleMilliseconds = 250;
constexpr int kSide = 12; ///< beside the content
constexpr int kHeaderAir = 8; ///< above and below its text together

/// The header. Left and Right close and open; the other arrows are left to whoever stands behind.
class Disclosure final : public QToolButton {
public:
    explicit Disclosure(QuickInfoView *view) : QToolButton(view), _view(view)
    {
        setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        setAutoRaise(true);
        QFont title;
        title.setWeight(QFont::DemiBold);
        setFont(title);
        setFocusPolicy(Qt::StrongFocus);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        connect(this, &QToolButton::clicked, view, &QuickInfoView::toggleContent);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool opens = event->key() == (isRightToLeft() ? Qt::Key_Left : Qt::Key_Right);
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            if (_view->isOpen() != opens)
                _view->toggleContent();
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return _view->toggleContent();
        case Qt::Key_Space:
            return QToolButton::keyPressEvent(event);
        default:
            event->ignore();
        }
    }

private:
    QuickInfoView *_view;
};

} // namespace

QuickInfoView::QuickInfoView(const QString &title, QWidget *content, QWidget *parent)
    : QWidget(parent), _disclosure(new Disclosure(this)), _content(content)
{
    content->setParent(this);
    setTitle(title);
    _animation.setDuration(kToggleMilliseconds);
    _animation.setEasingCurve(QEasingCurve::InOutCubic);
    connect(&_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { setPanelHeight(value.toInt()); });
    connect(&_animation, &QVariantAnimation::finished, this, [this] { setOpen(_isOpen); });
    setOpen(true);
}

void QuickInfoView::setTitle(const QString &title)
{
    QString text = title;
    _disclosure->setText(text.replace(u'&', QLatin1String("&&")));
    _disclosure->setAccessibleName(title);
}

int QuickInfoView::headerHeight() const
{
    return std::max(kHeaderHeight, fontMetrics().height() + kHeaderAir);
}

int QuickInfoView::goalHeight() const
{
    return headerHeight() + (_isOpen ? _contentHeight + kContentGap : 0);
}

void QuickInfoView::show(bool isOpen)
{
    _isOpen = isOpen;
    _disclosure->setAccessibleDescription(isOpen ? tr("open") : tr("closed"));
    const Qt::ArrowType closed = isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
    _disclosure->setArrowType(isOpen ? Qt::DownArrow : closed);
}

void QuickInfoView::setOpen(bool open)
{
    _animation.stop();
    show(open);
    // What is out of sight is not to get the keyboard.
    _content->setVisible(open);
    measureContent();
    setPanelHeight(goalHeight());
}

void QuickInfoView::toggleContent()
{
    show(!_isOpen);
    if (!isVisible() || style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) == 0) {
        setOpen(_isOpen);
    } else {
        _content->show();
        measureContent();
        _animation.stop();
        _animation.setStartValue(_panelHeight);
        _animation.setEndValue(goalHeight());
        _animation.start();
    }
    Q_EMIT toggled(_isOpen);
}

void QuickInfoView::setContentHeight(int height)
{
    _contentHeight = height;
    if (isToggling())
        _animation.setEndValue(goalHeight());
    else
        setPanelHeight(goalHeight());
}

void QuickInfoView::setPanelHeight(int height)
{
    if (std::exchange(_panelHeight, height) != height)
        Q_EMIT panelHeightDidChange();
}

void QuickInfoView::measureContent()
{
    const int contentWidth = std::max(width() - 2 * kSide, 0);
    _disclosure->setGeometry(0, 0, width(), headerHeight());
    _content->resize(contentWidth, _content->height());
    const QLayout *layout = _content->layout();
    int height = _content->minimumHeight();
    if (layout)
        height = layout->hasHeightForWidth() ? layout->totalHeightForWidth(contentWidth)
                                             : layout->totalSizeHint().height();
    _content->setGeometry(kSide, headerHeight() + kContentGap / 2, contentWidth, height);
    setContentHeight(height);
}

bool QuickInfoView::event(QEvent *event)
{
    // Nobody asks for a layout while it is hidden.
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::FontChange
        || event->type() == QEvent::Show)
        measureContent();
    return QWidget::event(event);
}

void QuickInfoView::resizeEvent(QResizeEvent *event)
{
    if (event->oldSize().width() != event->size().width())
        measureContent();
}

} // namespace quorvin
