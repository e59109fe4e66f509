// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace quorvin {

class RegularFile;

/// The beginning of a text file. Main thread.
class TextView : public QWidget {
    Q_OBJECT
public:
    explicit TextView(QWidget *parent = nullptr);

    /// Reads it here: no more than `kMostTextBytes`.
    void setFile(const RegularFile &file);
    void clear();
    QString text() const;
    /// What is said below the text; "" for nothing.
    QString note() const;

private:
    QPlainTextEdit *_text;
    QLabel *_note;
};

} // namespace quorvin
