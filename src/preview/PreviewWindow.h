// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "preview/FactsView.h"
#include "preview/StillDecoder.h"
#include "preview/ViewChoice.h"

#include <QTimer>
#include <QWidget>

class QLabel;
class QStackedLayout;

namespace quorvin {

class PictureView;
class PlayerView;
class RegularFile;
class TextView;

/// The panel: shows one file as it can best be seen, and what it is in a line below. Main thread.
class PreviewWindow : public QWidget {
    Q_OBJECT
public:
    PreviewWindow();
    ~PreviewWindow() override;

    /// In place of the file before. What takes long comes later: `settled` tells.
    void showFile(const QString &path);
    /// Lets go of the file.
    void clear();
    void setUsesSIUnits(bool usesSIUnits) { _usesSIUnits = usesSIUnits; }
    void setMuted(bool isMuted);
    bool isMuted() const { return _isMuted; }

    /// How the file is shown, or will be once it is settled.
    PanelView view() const { return _view; }
    const PictureView &picture() const { return *_picture; }
    const TextView &text() const { return *_text; }
    const FactsView &facts() const { return *_facts; }
    /// Null until the first medium.
    PlayerView *player() const { return _player; }

Q_SIGNALS:
    /// The file is shown, or cannot be.
    void settled();
    /// The user has closed the panel, which is hidden now.
    void closed(bool byKey);
    void keyUnused(int key, Qt::KeyboardModifiers modifiers, const QString &text, bool isRepeated);
    void mutedChanged(bool isMuted);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void layOut();
    void showOpened(RegularFile file);
    void showPicture(int side, Picture::Detail detail);
    void takePicture(const Expected<Picture> &picture, Picture::Detail detail);
    void playMedium(RegularFile file);
    void showFacts(const QString &problem);
    void setView(PanelView view);
    void showCaption(const QString &measure = {});
    void closeByUser(bool byKey);
    /// Whether the panel or the view in it has a use for the key.
    bool takeKey(int key, Qt::KeyboardModifiers modifiers);
    bool takePlayerKey(int key);
    bool isForFocus(int key, Qt::KeyboardModifiers modifiers) const;

    QString _path;
    ShownFacts _known; ///< of the file
    ViewChoice _choice;
    PanelView _view = PanelView::Facts;
    bool _usesSIUnits = true;
    bool _isMuted = false;
    StillDecoder _decoder;
    QTimer _waiting; ///< runs until the picture before is no longer worth keeping
    QStackedLayout *_views;
    FactsView *_facts;
    PictureView *_picture;
    TextView *_text;
    PlayerView *_player = nullptr; ///< made for the first medium: the libraries take their time
    QLabel *_caption;
};

} // namespace quorvin
