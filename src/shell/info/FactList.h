// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QWidget>

#include <vector>

class QGridLayout;
class QLabel;

namespace quorvin {

/// Labelled facts, one below another; a value wraps, and can be selected. Main thread.
class FactList final : public QWidget {
    Q_OBJECT
public:
    struct Fact {
        QString label;
        QString value;
        bool isRemark = false; ///< said of the values by the program, and none of a file
        bool isPlace = false; ///< a double click or Return leads there

        bool operator==(const Fact &) const = default;
    };

    explicit FactList(QWidget *parent = nullptr);

    void setFacts(const std::vector<Fact> &facts);
    void setLabelsAlignment(Qt::Alignment alignment);
    /// Device-independent pixels.
    void setLabelsWidth(int width);
    /// Between a label and its value.
    void setGap(int gap);

    /// One of the values has the keyboard.
    bool canCopy() const { return focusedRow() != nullptr; }
    /// What is selected of that value, else label and value.
    void copy() const;
    void copyValue() const;

Q_SIGNALS:
    /// The value clicked on has the keyboard by then.
    void menuWanted(const QPoint &globalPosition);
    void placeOpened();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Row {
        QLabel *label;
        QLabel *value;
        bool isPlace = false;
    };

    void addRow();
    const Row *focusedRow() const;

    QGridLayout *_grid;
    std::vector<Row> _rows;
    Qt::Alignment _labelsAlignment = Qt::AlignTrailing;
};

} // namespace quorvin
