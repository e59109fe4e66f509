// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/BarPlot.h"

#include <qcustomplot.h>

#include <algorithm>

namespace quorvin {

namespace {

constexpr double kBarWidth = 0.8;
constexpr double kFullWidth = 0.98; ///< ranges stand beside each other
constexpr double kRoomOverBars = 1.05; ///< of the highest bar
constexpr double kRoomForBox = 1.28;

class WholeNumbers final : public QCPAxisTicker {
protected:
    double getTickStep(const QCPRange &range) override
    {
        return std::max(1.0, QCPAxisTicker::getTickStep(range));
    }
    int getSubTickCount(double) override { return 0; }
    QString getTickLabel(double tick, const QLocale &, QChar, int) override
    {
        return QLocale().toString(static_cast<qint64>(tick));
    }
};

class CustomBarPlot final : public BarPlot {
public:
    explicit CustomBarPlot(QWidget *parent) : _plot(new QCustomPlot(parent))
    {
        _plot->setFocusPolicy(Qt::NoFocus);
        _plot->setNoAntialiasingOnDrag(true);
    }

    QWidget &widget() override { return *_plot; }

    void show(const Bars &bars, const BarColors &colors) override
    {
        _plot->clearPlottables();
        _plot->clearItems();
        _isSideways = bars.isSideways;
        setColors(colors, !bars.bars.empty());
        if (!bars.bars.empty())
            addBars(bars, colors);
        if (bars.box)
            addBox(*bars.box, colors);
        _plot->replot(QCustomPlot::rpQueuedReplot);
    }

    double barAt(QPointF place) const override
    {
        return barAxis()->pixelToCoord(_isSideways ? place.y() : place.x());
    }

    QPointF placeOf(double bar, double height) const override
    {
        const double along = barAxis()->coordToPixel(bar);
        const double up = countAxis()->coordToPixel(height);
        return _isSideways ? QPointF(up, along) : QPointF(along, up);
    }

    void paint(QPaintDevice &device, Device kind, const QSize &size, int headHeight,
               const std::function<void(QPainter &)> &paintHead) const override
    {
        QCPPainter painter(&device);
        if (kind == Device::Vectors)
            painter.setMode(QCPPainter::pmVectorized);
        painter.setMode(QCPPainter::pmNoCaching);
        paintHead(painter);
        painter.translate(0, headHeight);
        _plot->toPainter(&painter, size.width(), size.height());
    }

private:
    QCPAxis *barAxis() const { return _isSideways ? _plot->yAxis : _plot->xAxis; }
    QCPAxis *countAxis() const { return _isSideways ? _plot->xAxis : _plot->yAxis; }

    void setColors(const BarColors &colors, bool hasBars) const
    {
        _plot->setBackground(colors.ground);
        for (QCPAxis *axis : {_plot->xAxis, _plot->yAxis}) {
            axis->setBasePen(colors.axis);
            axis->setTickPen(colors.axis);
            axis->setSubTickPen(Qt::NoPen);
            axis->setTickLabelColor(colors.text);
            axis->setTickLabelFont(_plot->font());
            axis->setTickLabelRotation(0);
            axis->grid()->setVisible(false);
            axis->setRangeReversed(false);
            axis->setVisible(hasBars);
        }
        countAxis()->grid()->setVisible(hasBars);
        countAxis()->grid()->setPen(colors.grid);
        countAxis()->grid()->setZeroLinePen(Qt::NoPen);
    }

    void addBars(const Bars &bars, const BarColors &colors)
    {
        QVector<double> keys[2];
        QVector<double> heights[2];
        double most = 1;
        for (std::size_t i = 0; i < bars.bars.size(); ++i) {
            const int isChosen = bars.bars[i].isChosen ? 1 : 0;
            keys[isChosen].append(static_cast<double>(i));
            heights[isChosen].append(bars.bars[i].height);
            most = std::max(most, bars.bars[i].height);
        }
        for (const int isChosen : {0, 1}) {
            auto *one = new QCPBars(barAxis(), countAxis());
            one->setWidth(_isSideways ? kBarWidth : kFullWidth);
            one->setPen(isChosen == 1 ? QPen(colors.text) : QPen(Qt::NoPen));
            one->setBrush(isChosen == 1 ? colors.chosenBar : colors.bar);
            one->setData(keys[isChosen], heights[isChosen], true);
        }
        countAxis()->setRange(0, most * (bars.box ? kRoomForBox : kRoomOverBars));
        countAxis()->setTicker(QSharedPointer<QCPAxisTicker>(new WholeNumbers));
        barAxis()->setRange(-0.6, static_cast<double>(bars.bars.size()) - 0.4);
        barAxis()->setRangeReversed(_isSideways);
        QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
        ticker->setSubTickCount(0);
        for (const Bars::Name &name : bars.names)
            ticker->addTick(name.place, name.text);
        barAxis()->setTicker(ticker);
    }

    void addBox(const Bars::Box &box, const BarColors &colors)
    {
        const auto put = [&](QCPItemPosition *position, double place, double height) {
            position->setTypeX(QCPItemPosition::ptPlotCoords);
            position->setTypeY(QCPItemPosition::ptAxisRectRatio);
            position->setAxisRect(_plot->axisRect());
            position->setAxes(_plot->xAxis, _plot->yAxis);
            position->setCoords(place, height);
        };
        const auto addLine = [&](double from, double top, double to, double bottom, int width) {
            auto *line = new QCPItemLine(_plot);
            put(line->start, from, top);
            put(line->end, to, bottom);
            line->setPen(QPen(colors.text, width));
        };
        constexpr double kTop = 0.04;
        constexpr double kMiddle = 0.08;
        constexpr double kBottom = 0.12;
        addLine(box.least, kMiddle, box.lowerQuartile, kMiddle, 1);
        addLine(box.upperQuartile, kMiddle, box.greatest, kMiddle, 1);
        auto *middle = new QCPItemRect(_plot);
        put(middle->topLeft, box.lowerQuartile, kTop);
        put(middle->bottomRight, box.upperQuartile, kBottom);
        middle->setPen(QPen(colors.text, 1));
        middle->setBrush(colors.box);
        addLine(box.median, kTop, box.median, kBottom, 2);
        for (const double end : {box.least, box.greatest})
            addLine(end, kTop + 0.02, end, kBottom - 0.02, 1);
    }

    QCustomPlot *_plot;
    bool _isSideways = true;
};

} // namespace

} // namespace quorvin

extern "C" Q_DECL_EXPORT quorvin::BarPlot *makeBarPlot(QWidget *parent)
{
    return new quorvin::CustomBarPlot(parent);
}
