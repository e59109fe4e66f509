// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QToolButton;

namespace quorvin {

/// A line in which a text is looked for, with ways to its next and its last occurrence. Escape closes it.
/// Main thread.
class FindBar final : public QWidget {
    Q_OBJECT
public:
    explicit FindBar(QWidget *parent = nullptr);

    QString text() const;
    /// Shows the line and gives it the keyboard, its text selected.
    void open();
    /// What is found of the text, so that the line says how much.
    void setHits(int hits);

Q_SIGNALS:
    /// "" when the line closes.
    void textChanged(const QString &text);
    void nextWanted();
    void previousWanted();
    /// The keyboard is free again.
    void closed();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void close();
    QToolButton *addButton(Qt::ArrowType arrow, const QString &name);

    QLineEdit *_text;
    QLabel *_hits;
};

} // namespace quorvin
