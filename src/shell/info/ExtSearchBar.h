// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace quorvin {

/// The bar over the Extended tree in which a text is looked for. It keeps its text while it is closed.
/// Main thread.
class ExtSearchBar final : public QWidget {
    Q_OBJECT
public:
    explicit ExtSearchBar(QWidget *parent = nullptr);

    /// It is there, or about to be; "" counts as a text.
    bool isOpen() const { return _isOpen; }
    QString text() const;
    /// Slides in, unless it is there, and takes the keyboard.
    void showAnimated();
    void hideAnimated();
    /// How many parameters have the text.
    void setHits(int hits);

Q_SIGNALS:
    /// A moment after the text has changed, at Return if that comes first, and when the bar goes.
    void searchWanted();
    /// At Return, and with Shift backwards; the search for the text has been wanted before.
    void nextWanted(bool backwards);
    /// The bar is to be closed.
    void closeWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void slideTo(int height, int milliseconds);
    QToolButton *addButton(const QString &text, const QString &name);

    QLineEdit *_searchField;
    QLabel *_hits;
    QVariantAnimation _slide;
    QTimer _pause;
    bool _isOpen = false;
};

} // namespace quorvin
