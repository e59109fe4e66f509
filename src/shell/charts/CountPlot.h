// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/charts/BarPlot.h"
#include "statistics/CountTable.h"

#include <QByteArray>
#include <QPointF>
#include <QWidget>

#include <cstddef>
#include <memory>
#include <vector>

class QHelpEvent;

namespace quorvin {

/// A count as bars, in the colours of the palette: of values the most frequent, one below the other; of
/// ranges all side by side, with a box of the quartiles over numbers. What it shows stands in the table below
/// it, which is for the keyboard and for readers. Main thread.
class CountPlot final : public QWidget {
    Q_OBJECT
public:
    explicit CountPlot(QWidget *parent = nullptr);
    ~CountPlot() override;

    /// Null: nothing is counted.
    void setTable(CountTablePtr table);
    /// These rows of the table stand out.
    void setSelected(const std::vector<std::size_t> &rows);
    /// Whether not all values have a bar.
    bool isCut() const { return _isCut; }
    /// Where the bar of that row is, in this widget; for those who look at it as a whole.
    QPointF placeOf(std::size_t row) const;

    /// The plot below its title, as a picture of the size on the screen, and twice as fine; as a page it has
    /// dark letters on a light ground, whatever the window has.
    QByteArray png(const QString &title) const;
    QByteArray pdf(const QString &title) const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has chosen these rows by a click, or ranges by a drag; `adds`: to what was chosen before.
    void rowsChosen(const std::vector<std::size_t> &rows, bool adds);
    /// There is more room than before, or less.
    void isCutDidChange();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    std::vector<std::size_t> rowsBetween(QPointF from, QPointF to) const;
    void showTip(const QHelpEvent &event) const;
    Bars barsShown() const;
    void draw();

    std::unique_ptr<BarPlot> _plot;
    CountTablePtr _table;
    std::vector<std::size_t> _selected;
    QPointF _pressed;
    std::size_t _shown = 0; ///< bars
    bool _isSideways = true;
    bool _isPressed = false;
    bool _isCut = false;
};

} // namespace quorvin
