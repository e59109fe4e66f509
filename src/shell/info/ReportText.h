// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/BackgroundRun.h"

#include <QString>
#include <QWidget>

#include <vector>

class QLabel;
class QPlainTextEdit;
class QToolButton;

namespace quorvin {

/// A text of any length, which is held once: of one that is too long for a view a part is shown at a time,
/// with ways to the next and the one before. Main thread.
class ReportText final : public QWidget {
    Q_OBJECT
public:
    /// Letters of a part.
    static constexpr qsizetype kPartLength = 500'000;

    explicit ReportText(QWidget *parent = nullptr);

    /// Shows its beginning.
    void setText(const QString &text);
    const QString &text() const { return _text; }
    /// The letters that are shown.
    QPlainTextEdit &view() { return *_view; }
    const QPlainTextEdit &view() const { return *_view; }

    /// Counts the places that have this; `counted` tells. Case does not matter.
    void count(const QString &wanted);
    /// Selects its next place, or the one before, in whatever part; behind the last one comes the first.
    void find(const QString &wanted, bool backwards);
    void setWrapsLines(bool wraps);

Q_SIGNALS:
    void counted(int hits);

private:
    /// Where the parts begin, and the end of the last one: at line ends, where there are any.
    static std::vector<qsizetype> partsOf(const QString &text);
    QToolButton *addButton(Qt::ArrowType arrow, const QString &name, int step);
    void showPart(int part);
    void selectIn(int part, const QString &wanted, bool backwards);

    QString _text;
    std::vector<qsizetype> _parts;
    int _part = 0;
    QPlainTextEdit *_view;
    QWidget *_strip; ///< there while there is more than one part
    QLabel *_place;
    QToolButton *_earlier;
    QToolButton *_later;
    BackgroundRun<int> _count{this};
    BackgroundRun<int> _find{this};
};

} // namespace quorvin
