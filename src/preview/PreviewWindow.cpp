// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/PreviewWindow.h"

#include "filefacts/Sizes.h"
#include "pictures/WholePicture.h"
#include "platform/LocalDates.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"
#include "preview/PictureView.h"
#include "preview/PlayerView.h"
#include "preview/TextView.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr QSize kFirstPanelSize(820, 600);
constexpr QSize kLeastPanelSize(240, 180);
constexpr qsizetype kHeadBytes = 16 << 10; ///< by which the kind of a file is told
constexpr int kKeepMilliseconds = 400; ///< that the picture before stays while the next one is decoded
constexpr int kSeekMilliseconds = 5'000; ///< that a key goes on or back
constexpr int kStillSide = 512; ///< pixels of what stands for a sound
constexpr int kStillIconSide = 128;

} // namespace

PreviewWindow::PreviewWindow()
    : _views(new QStackedLayout),
      _facts(new FactsView),
      _picture(new PictureView),
      _text(new TextView),
      _caption(plainLabel())
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint
                   | Qt::WindowCloseButtonHint);
    layOut();
    resize(kFirstPanelSize);
    setMinimumSize(kLeastPanelSize);
    _waiting.setSingleShot(true);
    _waiting.setInterval(kKeepMilliseconds);
    connect(&_waiting, &QTimer::timeout, this, [this] {
        _picture->clear();
        showCaption(tr("Reading…"));
    });
    connect(_picture, &PictureView::largerWanted, this,
            [this](int side) { showPicture(side, Picture::Detail::Full); });
    QCoreApplication::instance()->installEventFilter(this);
}

PreviewWindow::~PreviewWindow()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

void PreviewWindow::layOut()
{
    _views->addWidget(_facts);
    _views->addWidget(_picture);
    _views->addWidget(_text);
    _caption->setMargin(6);
    _caption->setAlignment(Qt::AlignCenter);
    _caption->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(_views, 1);
    column->addWidget(_caption);
}

void PreviewWindow::showFile(const QString &path)
{
    _decoder.forget();
    _waiting.stop();
    if (_player)
        _player->clear();
    _path = path;
    _known = {};
    _known.name = lastPathComponent(path);
    setWindowTitle(_known.name);
    auto file = RegularFile::open(path);
    if (file) {
        showOpened(*std::move(file));
    } else {
        _choice = {};
        showFacts(tr("It cannot be opened: %1").arg(file.error().description));
    }
}

void PreviewWindow::showOpened(RegularFile file)
{
    _choice = viewFor(_known.name, file.head(kHeadBytes));
    const auto size = static_cast<qint64>(file.size());
    _known.kind = _choice.kind;
    _known.mimeName = _choice.mimeName;
    _known.size = _usesSIUnits ? Utilities::filesizeToMacHumanString(size)
                               : Utilities::filesizeToBase2HumanString(size);
    _known.modified = localizedDate(file.modificationTime());
    switch (_choice.view) {
    case PanelView::Picture:
        setView(PanelView::Picture);
        _waiting.start();
        return showPicture(_picture->wantedSide(), Picture::Detail::Draft);
    case PanelView::Medium:
        playMedium(std::move(file));
        break;
    case PanelView::Text:
        setView(PanelView::Text);
        _text->setFile(file);
        break;
    case PanelView::Facts:
        return showFacts({});
    }
    showCaption();
    Q_EMIT settled();
}

void PreviewWindow::showPicture(int side, Picture::Detail detail)
{
    _decoder.decode({_path, side, detail},
                    [this, detail](const Expected<Picture> &picture) { takePicture(picture, detail); });
}

void PreviewWindow::takePicture(const Expected<Picture> &picture, Picture::Detail detail)
{
    _waiting.stop();
    if (!picture)
        return showFacts(tr("It cannot be shown: %1").arg(picture.error().description));
    // The moving one before would stay in front.
    _picture->clear();
    _picture->setPicture(*picture, detail);
    if (picture->isAnimated) {
        if (auto file = RegularFile::open(_path))
            _picture->animate(*std::move(file));
    }
    showCaption(tr("%1 × %2").arg(groupedCount(picture->fullWidth), groupedCount(picture->fullHeight)));
    Q_EMIT settled();
}

void PreviewWindow::playMedium(RegularFile file)
{
    if (!_player) {
        _player = new PlayerView;
        _player->setMuted(_isMuted);
        _views->addWidget(_player);
        connect(_player, &PlayerView::mutedChanged, this, [this](bool isMuted) {
            _isMuted = isMuted;
            Q_EMIT mutedChanged(isMuted);
        });
    }
    setView(PanelView::Medium);
    _player->play(std::move(file));
    if (_choice.hasPictures)
        return;
    _player->setStill(mimeIcon(_choice.mimeName).pixmap(kStillIconSide).toImage());
    _decoder.decode({_path, kStillSide}, [this](const Expected<Picture> &cover) {
        if (cover)
            _player->setStill(imageOf(*cover));
    });
}

void PreviewWindow::showFacts(const QString &problem)
{
    _known.problem = problem;
    _facts->setFacts(_known);
    setView(PanelView::Facts);
    _caption->clear();
    Q_EMIT settled();
}

void PreviewWindow::setView(PanelView view)
{
    _view = view;
    const std::array<QWidget *, 4> widgets{_facts, _picture, _player, _text};
    QWidget *widget = widgets[static_cast<std::size_t>(view)];
    _views->setCurrentWidget(widget);
    if (view != PanelView::Picture)
        _picture->clear();
    if (view != PanelView::Text)
        _text->clear();
    widget->setFocus();
}

void PreviewWindow::showCaption(const QString &measure)
{
    QStringList parts{_known.kind, measure, _known.size};
    parts.removeAll(QString());
    _caption->setText(parts.join(QStringLiteral(" · ")));
}

void PreviewWindow::clear()
{
    _decoder.forget();
    _waiting.stop();
    _path.clear();
    _picture->clear();
    _text->clear();
    if (_player)
        _player->clear();
}

void PreviewWindow::setMuted(bool isMuted)
{
    _isMuted = isMuted;
    if (_player)
        _player->setMuted(isMuted);
}

void PreviewWindow::closeEvent(QCloseEvent *event)
{
    event->ignore();
    closeByUser(false);
}

void PreviewWindow::closeByUser(bool byKey)
{
    hide();
    clear();
    Q_EMIT closed(byKey);
}

bool PreviewWindow::eventFilter(QObject *watched, QEvent *event)
{
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::KeyPress || !widget || widget->window() != this)
        return false;
    const auto *press = static_cast<const QKeyEvent *>(event);
    const int key = press->key();
    // Modifiers alone, and what walks through the controls, are the toolkit's.
    if (key == 0 || (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_Tab
        || key == Qt::Key_Backtab || isForFocus(key, press->modifiers()))
        return false;
    const Qt::KeyboardModifiers modifiers = press->modifiers() & ~Qt::KeypadModifier;
    if (!takeKey(key, modifiers))
        Q_EMIT keyUnused(key, modifiers, press->text(), press->isAutoRepeat());
    return true;
}

bool PreviewWindow::isForFocus(int key, Qt::KeyboardModifiers modifiers) const
{
    if (_view != PanelView::Text || !_text->isAncestorOf(QApplication::focusWidget()))
        return false;
    static constexpr std::array kScrolling{Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
                                           Qt::Key_End,    Qt::Key_Left,     Qt::Key_Right};
    static constexpr std::array kOfSelection{Qt::Key_A, Qt::Key_C};
    return std::ranges::find(kScrolling, key) != kScrolling.end() || modifiers == Qt::ShiftModifier
        || (modifiers == Qt::ControlModifier && std::ranges::find(kOfSelection, key) != kOfSelection.end());
}

bool PreviewWindow::takeKey(int key, Qt::KeyboardModifiers modifiers)
{
    const bool isClosing = key == Qt::Key_Space || key == Qt::Key_Escape;
    if ((isClosing && modifiers == Qt::NoModifier)
        || (key == Qt::Key_W && modifiers == Qt::ControlModifier)) {
        closeByUser(true);
        return true;
    }
    if (modifiers != Qt::NoModifier)
        return false;
    if (key == Qt::Key_F11) {
        setWindowState(windowState() ^ Qt::WindowFullScreen);
        return true;
    }
    auto *button = qobject_cast<QToolButton *>(QApplication::focusWidget());
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && button && isAncestorOf(button)) {
        button->click();
        return true;
    }
    return _view == PanelView::Medium && takePlayerKey(key);
}

bool PreviewWindow::takePlayerKey(int key)
{
    switch (key) {
    case Qt::Key_P:
    case Qt::Key_MediaTogglePlayPause:
    case Qt::Key_MediaPlay:
    case Qt::Key_MediaPause:
        _player->togglePlaying();
        return true;
    case Qt::Key_M:
        _player->toggleMuted();
        return true;
    case Qt::Key_Left:
        _player->seekBy(-kSeekMilliseconds);
        return true;
    case Qt::Key_Right:
        _player->seekBy(kSeekMilliseconds);
        return true;
    default:
        return false;
    }
}

} // namespace quorvin
