// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/CountPlot.h"

#include "shell/desktop/ColorScheme.h"
#include "shell/desktop/Contrast.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "statistics/MeasureText.h"

#include <QBuffer>
#include <QEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPdfWriter>
#include <QToolTip>
#include <QVBoxLayout>
#include <qcustomplot.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr int kMostBars = 40; ///< of values; more would be lines
constexpr int kFewestBars = 5; ///< of values, however low the plot is
constexpr int kLinesOfAxis = 3; ///< with the margins of the plot
constexpr double kBarWidth = 0.8;
constexpr double kFullWidth = 0.98; ///< ranges stand beside each other
constexpr double kRoomForBox = 1.28; ///< of the highest bar
constexpr int kLongestName = 28; ///< letters
constexpr int kFinePicture = 2;
constexpr double kWeak = 0.7; ///< part of its colour that a bar has while it is not chosen

QString shortName(const QString &text)
{
    const QString line = text.simplified();
    return line.size() > kLongestName ? line.first(kLongestName - 1) + u'…' : line;
}

} // namespace

/// The plot of the library, in which bar i stands around i.
class CountPlot::Drawing {
public:
    explicit Drawing(QWidget *parent) : plot(new QCustomPlot(parent))
    {
        plot->setFocusPolicy(Qt::NoFocus);
        plot->setNoAntialiasingOnDrag(true);
    }

    void fill(const CountTablePtr &table, const std::vector<std::size_t> &selected, const QPalette &palette)
    {
        plot->clearPlottables();
        plot->clearItems();
        isSideways = !table || !table->isInRanges();
        bars = table ? table->counted().size() : 0;
        if (isSideways)
            bars = std::min(bars, barsWithRoom());
        setColors(palette);
        if (bars > 0)
            addBars(*table, selected, palette);
        if (bars > 0 && !isSideways && !table->step())
            addBox(*table, palette);
        plot->replot(QCustomPlot::rpQueuedReplot);
    }

    QCPAxis *barAxis() const { return isSideways ? plot->yAxis : plot->xAxis; }
    QCPAxis *countAxis() const { return isSideways ? plot->xAxis : plot->yAxis; }

    QCustomPlot *plot;
    std::size_t bars = 0;
    bool isSideways = true;

private:
    /// Of bars one below the other, with a name beside each.
    std::size_t barsWithRoom() const
    {
        const int line = plot->fontMetrics().height();
        return static_cast<std::size_t>(
            std::clamp(plot->height() / line - kLinesOfAxis, kFewestBars, kMostBars));
    }

    void setColors(const QPalette &palette) const
    {
        const QColor text = palette.color(QPalette::Text);
        const QColor base = palette.color(QPalette::Base);
        plot->setBackground(base);
        for (QCPAxis *axis : {plot->xAxis, plot->yAxis}) {
            axis->setBasePen(between(base, text, 0.4));
            axis->setTickPen(between(base, text, 0.4));
            axis->setSubTickPen(Qt::NoPen);
            axis->setTickLabelColor(text);
            axis->setTickLabelFont(plot->font());
            axis->setTickLabelRotation(0);
            axis->grid()->setVisible(false);
            axis->setRangeReversed(false);
            axis->setVisible(bars > 0);
        }
        countAxis()->grid()->setVisible(bars > 0);
        countAxis()->grid()->setPen(between(base, text, 0.15));
        countAxis()->grid()->setZeroLinePen(Qt::NoPen);
    }

    void addBars(const CountTable &table, const std::vector<std::size_t> &selected, const QPalette &palette)
    {
        QVector<double> keys[2];
        QVector<double> counts[2];
        double most = 1;
        for (std::size_t row = 0; row < bars; ++row) {
            const int isChosen = std::ranges::binary_search(selected, row) ? 1 : 0;
            keys[isChosen].append(static_cast<double>(row));
            counts[isChosen].append(static_cast<double>(table.counted()[row].sum.files));
            most = std::max(most, counts[isChosen].last());
        }
        const QColor strong = palette.color(QPalette::Active, QPalette::Highlight);
        const QColor weak = between(palette.color(QPalette::Base), strong, kWeak);
        for (const int isChosen : {0, 1}) {
            auto *one = new QCPBars(barAxis(), countAxis());
            one->setWidth(isSideways ? kBarWidth : kFullWidth);
            one->setPen(isChosen == 1 ? QPen(palette.color(QPalette::Text)) : QPen(Qt::NoPen));
            one->setBrush(isChosen == 1 ? strong : weak);
            one->setData(keys[isChosen], counts[isChosen], true);
        }
        const bool hasBox = !isSideways && !table.step();
        countAxis()->setRange(0, most * (hasBox ? kRoomForBox : 1.05));
        countAxis()->setTicker(wholeNumbers());
        barAxis()->setRange(-0.6, static_cast<double>(bars) - 0.4);
        barAxis()->setRangeReversed(isSideways);
        barAxis()->setTicker(names(table));
    }

    static QSharedPointer<QCPAxisTicker> wholeNumbers()
    {
        class Ticker : public QCPAxisTicker {
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
        return QSharedPointer<QCPAxisTicker>(new Ticker);
    }

    /// Of bars side by side as many as have room; numbers stand at the edges between them.
    QSharedPointer<QCPAxisTicker> names(const CountTable &table) const
    {
        QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
        ticker->setSubTickCount(0);
        const bool isAtEdges = !isSideways && !table.step();
        const auto textOf = [&](std::size_t row) {
            const CountRow &one = table.counted()[row];
            return isAtEdges ? measuredText(one.from, table.figures()->measure) : shortName(one.text);
        };
        std::size_t step = 1;
        if (!isSideways) {
            qsizetype longest = 1;
            for (std::size_t row = 0; row < bars; ++row)
                longest = std::max(longest, textOf(row).size());
            const int width = plot->fontMetrics().averageCharWidth() * static_cast<int>(longest + 3);
            const auto room = static_cast<std::size_t>(std::max(1, plot->width() / std::max(1, width)));
            step = (bars + room - 1) / room;
        }
        for (std::size_t row = 0; row < bars; row += step)
            ticker->addTick(static_cast<double>(row) - (isAtEdges ? 0.5 : 0), textOf(row));
        if (isAtEdges && bars % step == 0)
            ticker->addTick(static_cast<double>(bars) - 0.5,
                            measuredText(table.counted()[bars - 1].to, table.figures()->measure));
        return ticker;
    }

    /// Where a number stands among the bars.
    double placeOf(double value, const CountTable &table) const
    {
        for (std::size_t row = 0; row < bars; ++row) {
            const CountRow &one = table.counted()[row];
            if (value < one.to || row + 1 == bars)
                return static_cast<double>(row) - 0.5
                    + std::clamp((value - one.from) / (one.to - one.from), 0.0, 1.0);
        }
        return 0;
    }

    void addBox(const CountTable &table, const QPalette &palette)
    {
        const Figures &figures = *table.figures();
        const auto put = [&](QCPItemPosition *position, double value, double height) {
            position->setTypeX(QCPItemPosition::ptPlotCoords);
            position->setTypeY(QCPItemPosition::ptAxisRectRatio);
            position->setAxisRect(plot->axisRect());
            position->setAxes(plot->xAxis, plot->yAxis);
            position->setCoords(placeOf(value, table), height);
        };
        const auto addLine = [&](double from, double top, double to, double bottom, int width) {
            auto *line = new QCPItemLine(plot);
            put(line->start, from, top);
            put(line->end, to, bottom);
            line->setPen(QPen(palette.color(QPalette::Text), width));
        };
        constexpr double kTop = 0.04;
        constexpr double kMiddle = 0.08;
        constexpr double kBottom = 0.12;
        addLine(figures.least, kMiddle, figures.lowerQuartile, kMiddle, 1);
        addLine(figures.upperQuartile, kMiddle, figures.greatest, kMiddle, 1);
        auto *box = new QCPItemRect(plot);
        put(box->topLeft, figures.lowerQuartile, kTop);
        put(box->bottomRight, figures.upperQuartile, kBottom);
        box->setPen(QPen(palette.color(QPalette::Text), 1));
        box->setBrush(between(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.12));
        addLine(figures.median, kTop, figures.median, kBottom, 2);
        for (const double end : {figures.least, figures.greatest})
            addLine(end, kTop + 0.02, end, kBottom - 0.02, 1);
    }
};

CountPlot::CountPlot(QWidget *parent) : QWidget(parent), _drawing(std::make_unique<Drawing>(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_drawing->plot);
    setMinimumHeight(fontMetrics().height() * (kFewestBars + kLinesOfAxis));
    _drawing->plot->installEventFilter(this);
    setAccessibleName(tr("Plot"));
    setAccessibleDescription(tr("The table below says the same"));
    draw();
}

CountPlot::~CountPlot()
{
    _drawing->plot->removeEventFilter(this);
}

QSize CountPlot::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 80, fontMetrics().height() * 14};
}

void CountPlot::setTable(CountTablePtr table)
{
    _table = std::move(table);
    _selected.clear();
    draw();
}

void CountPlot::setSelected(const std::vector<std::size_t> &rows)
{
    _selected = rows;
    std::ranges::sort(_selected);
    draw();
}

void CountPlot::draw()
{
    const bool wasCut = std::exchange(_isCut, false);
    _drawing->fill(_table, _selected, palette());
    _isCut = _table && _drawing->bars < _table->counted().size();
    if (_isCut != wasCut)
        Q_EMIT isCutDidChange();
}

QPointF CountPlot::placeOf(std::size_t row) const
{
    const auto files = static_cast<double>(_table->counted()[row].sum.files);
    const double along = _drawing->barAxis()->coordToPixel(static_cast<double>(row));
    const double height = _drawing->countAxis()->coordToPixel(files / 2);
    return _drawing->isSideways ? QPointF(height, along) : QPointF(along, height);
}

std::vector<std::size_t> CountPlot::rowsBetween(QPointF from, QPointF to) const
{
    const auto barAt = [this](QPointF place) {
        return _drawing->barAxis()->pixelToCoord(_drawing->isSideways ? place.y() : place.x()) + 0.5;
    };
    const auto [least, greatest] = std::minmax({barAt(from), barAt(to)});
    const double end = std::min(std::floor(greatest) + 1, static_cast<double>(_drawing->bars));
    std::vector<std::size_t> rows;
    for (auto bar = static_cast<std::ptrdiff_t>(std::max(0.0, std::floor(least)));
         bar < static_cast<std::ptrdiff_t>(end); ++bar)
        rows.push_back(static_cast<std::size_t>(bar));
    return rows;
}

void CountPlot::showTip(const QHelpEvent &event) const
{
    const auto rows = rowsBetween(event.pos(), event.pos());
    if (rows.empty())
        return QToolTip::hideText();
    const CountRow &row = _table->counted()[rows.front()];
    const QString text = tr("%1: %2").arg(row.text.simplified(), countOfFiles(row.sum.files));
    QToolTip::showText(event.globalPos(), plainTip(text, *_drawing->plot), _drawing->plot);
}

bool CountPlot::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &CountPlot::draw, Qt::QueuedConnection);
    if (event->type() == QEvent::ToolTip && _table)
        showTip(*static_cast<QHelpEvent *>(event));
    const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove
        || event->type() == QEvent::MouseButtonRelease;
    if (!isMouse || !_table)
        return QWidget::eventFilter(watched, event);
    const auto *const mouse = static_cast<QMouseEvent *>(event);
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        _isPressed = true;
        _pressed = mouse->position();
    }
    const auto rows = rowsBetween(_drawing->isSideways ? mouse->position() : _pressed, mouse->position());
    if (event->type() == QEvent::MouseMove && _isPressed && !_drawing->isSideways)
        setSelected(rows);
    if (event->type() == QEvent::MouseButtonRelease && std::exchange(_isPressed, false) && !rows.empty())
        Q_EMIT rowsChosen(rows, mouse->modifiers().testFlag(Qt::ControlModifier));
    return true;
}

void CountPlot::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange
        || event->type() == QEvent::StyleChange)
        draw();
}

QByteArray CountPlot::png(const QString &title) const
{
    const int head = 3 * fontMetrics().height();
    QImage image(QSize(width(), height() + head) * kFinePicture, QImage::Format_RGB32);
    image.setDevicePixelRatio(kFinePicture);
    image.fill(palette().color(QPalette::Base));
    QCPPainter painter(&image);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::Text));
    const int margin = fontMetrics().height() / 2;
    painter.drawText(QRect(margin, 0, width() - 2 * margin, head), Qt::AlignVCenter | Qt::TextWordWrap,
                     title);
    painter.translate(0, head);
    painter.setMode(QCPPainter::pmNoCaching);
    _drawing->plot->toPainter(&painter, width(), height());
    painter.end();
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    image.save(&bytes, "PNG");
    return bytes.data();
}

QByteArray CountPlot::pdf(const QString &title) const
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setTitle(title);
    writer.setResolution(logicalDpiX());
    QCPPainter painter(&writer);
    painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNoCaching);
    const int head = 3 * fontMetrics().height();
    painter.setFont(font());
    painter.drawText(QRect(0, 0, writer.width(), head), Qt::AlignVCenter | Qt::TextWordWrap, title);
    painter.translate(0, head);
    _drawing->fill(_table, _selected, ColorScheme::ownPalette(false));
    _drawing->plot->toPainter(&painter, writer.width(), writer.height() - head);
    painter.end();
    _drawing->fill(_table, _selected, palette());
    return bytes.data();
}

} // namespace quorvin
