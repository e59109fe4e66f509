// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPoint>
#include <QSize>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QPaintDevice;
class QPainter;
class QWidget;

namespace quorvin {

/// What a plot of bars shows. Bar i stands around i, half a bar to either side.
struct Bars {
    struct Bar {
        double height = 0;
        bool isChosen = false;
    };
    struct Name {
        double place = 0;
        QString text;
    };
    /// Where these stand among the bars.
    struct Box {
        double least = 0;
        double lowerQuartile = 0;
        double median = 0;
        double upperQuartile = 0;
        double greatest = 0;
    };

    bool isSideways = true; ///< one below the other, the first at the top; else side by side without a gap
    std::vector<Bar> bars;
    std::vector<Name> names; ///< beside the bars, or at the places between them
    std::optional<Box> box; ///< over the bars
};

struct BarColors {
    QColor ground;
    QColor text;
    QColor axis;
    QColor grid;
    QColor box;
    QColor bar;
    QColor chosenBar;
};

/// A plot of bars in a widget. The library that draws it brings others along, and all together take a
/// twentieth of the time in which a window opens: what knows it is a module, which is loaded for the first
/// plot. Main thread.
class BarPlot {
public:
    BarPlot() = default;
    BarPlot(const BarPlot &) = delete;
    BarPlot &operator=(const BarPlot &) = delete;
    virtual ~BarPlot() = default;

    /// It belongs to its parent.
    virtual QWidget &widget() = 0;
    virtual void show(const Bars &bars, const BarColors &colors) = 0;

    /// How far along the bars a place of the widget is.
    virtual double barAt(QPointF place) const = 0;
    /// The place of the widget so far along the bars, and so high.
    virtual QPointF placeOf(double bar, double height) const = 0;

    enum class Device { Raster, Vectors };
    /// The plot of that size on the device, below a head of that height that is painted by whoever calls.
    virtual void paint(QPaintDevice &device, Device kind, const QSize &size, int headHeight,
                       const std::function<void(QPainter &)> &paintHead) const = 0;
};

} // namespace quorvin

/// The entry of the module, named `makeBarPlot`; the plot is the caller's.
using MakeBarPlot = quorvin::BarPlot *(QWidget *parent);
