// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/CountPlot.h"

#include "platform/LoadedLibrary.h"
#include "shell/desktop/ColorScheme.h"
#include "shell/desktop/Contrast.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "statistics/MeasureText.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPdfWriter>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorvin {

namespace {

constexpr int kMostBars = 40; ///< of values; more would be lines
constexpr int kFewestBars = 5; ///< of values, however low the plot is
constexpr int kLinesOfAxis = 3; ///< with the margins of the plot
constexpr int kLongestName = 28; ///< letters
constexpr int kFinePicture = 2;
constexpr double kWeak = 0.7; ///< part of its colour that a bar has while it is not chosen

QString shortName(const QString &text)
{
    const QString line = text.simplified();
    return line.size() > kLongestName ? line.first(kLongestName - 1) + u'…' : line;
}

/// Where the module of plots is missing.
class NoBarPlot final : public BarPlot {
public:
    explicit NoBarPlot(QWidget *parent)
        : _words(plainLabel(CountPlot::tr("The part that draws plots is missing.")))
    {
        _words->setParent(parent);
        _words->setAlignment(Qt::AlignCenter);
    }

    QWidget &widget() override { return *_words; }
    void show(const Bars &, const BarColors &) override { }
    double barAt(QPointF) const override { return -1; }
    QPointF placeOf(double, double) const override { return {}; }
    void paint(QPaintDevice &device, Device, const QSize &, int,
               const std::function<void(QPainter &)> &paintHead) const override
    {
        QPainter painter(&device);
        paintHead(painter);
    }

private:
    QLabel *_words;
};

std::unique_ptr<BarPlot> makePlot(QWidget *parent)
{
    static const LoadedLibrary module(
        QFile::encodeName(QCoreApplication::applicationDirPath() + QLatin1String("/libquorvin-plots.so")));
    static const LibraryEntry<MakeBarPlot> make(module, "makeBarPlot");
    std::unique_ptr<BarPlot> plot(make(parent));
    if (!plot)
        plot = std::make_unique<NoBarPlot>(parent);
    return plot;
}

BarColors colorsFrom(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const QColor strong = palette.color(QPalette::Active, QPalette::Highlight);
    return {.ground = base,
            .text = text,
            .axis = between(base, text, 0.4),
            .grid = between(base, text, 0.15),
            .box = between(base, text, 0.12),
            .bar = between(base, strong, kWeak),
            .chosenBar = strong};
}

/// A count for a plot of that size.
class BarsOfCount {
public:
    BarsOfCount(const CountTable &table, const QWidget &plot) : _table(table), _plot(plot) { }

    Bars bars(const std::vector<std::size_t> &selected) const
    {
        Bars bars;
        bars.isSideways = !_table.isInRanges();
        const std::size_t all = _table.counted().size();
        const std::size_t shown = bars.isSideways ? std::min(all, barsWithRoom()) : all;
        for (std::size_t row = 0; row < shown; ++row)
            bars.bars.push_back({static_cast<double>(_table.counted()[row].sum.files),
                                 std::ranges::binary_search(selected, row)});
        bars.names = names(shown);
        if (shown > 0 && _table.isInRanges() && !_table.step())
            bars.box = box(*_table.figures());
        return bars;
    }

private:
    /// Of bars one below the other, with a name beside each.
    std::size_t barsWithRoom() const
    {
        const int line = _plot.fontMetrics().height();
        return static_cast<std::size_t>(
            std::clamp(_plot.height() / line - kLinesOfAxis, kFewestBars, kMostBars));
    }

    bool isNamedAtEdges() const { return _table.isInRanges() && !_table.step(); }

    QString nameOf(std::size_t row) const
    {
        const CountRow &one = _table.counted()[row];
        return isNamedAtEdges() ? measuredText(one.from, _table.figures()->measure) : shortName(one.text);
    }

    /// Of bars side by side as many as have room; numbers stand at the edges between them.
    std::vector<Bars::Name> names(std::size_t bars) const
    {
        std::size_t step = 1;
        if (_table.isInRanges()) {
            qsizetype longest = 1;
            for (std::size_t row = 0; row < bars; ++row)
                longest = std::max(longest, nameOf(row).size());
            const int width = _plot.fontMetrics().averageCharWidth() * static_cast<int>(longest + 3);
            const auto room = static_cast<std::size_t>(std::max(1, _plot.width() / std::max(1, width)));
            step = std::max<std::size_t>(1, (bars + room - 1) / room);
        }
        std::vector<Bars::Name> names;
        for (std::size_t row = 0; row < bars; row += step)
            names.push_back({static_cast<double>(row) - (isNamedAtEdges() ? 0.5 : 0), nameOf(row)});
        if (isNamedAtEdges() && bars > 0 && bars % step == 0)
            names.push_back({static_cast<double>(bars) - 0.5,
                             measuredText(_table.counted()[bars - 1].to, _table.figures()->measure)});
        return names;
    }

    Bars::Box box(const Figures &figures) const
    {
        return {placeOf(figures.least), placeOf(figures.lowerQuartile), placeOf(figures.median),
                placeOf(figures.upperQuartile), placeOf(figures.greatest)};
    }

    /// Where a number stands among the bars.
    double placeOf(double value) const
    {
        const auto &rows = _table.counted();
        const auto row = std::ranges::find_if(rows, [&](const CountRow &one) { return value < one.to; });
        const CountRow &one = row == rows.end() ? rows.back() : *row;
        return static_cast<double>(&one - rows.data()) - 0.5
            + std::clamp((value - one.from) / (one.to - one.from), 0.0, 1.0);
    }

    const CountTable &_table;
    const QWidget &_plot;
};

} // namespace

CountPlot::CountPlot(QWidget *parent) : QWidget(parent), _plot(makePlot(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&_plot->widget());
    setMinimumHeight(fontMetrics().height() * (kFewestBars + kLinesOfAxis));
    _plot->widget().installEventFilter(this);
    setAccessibleName(tr("Plot"));
    setAccessibleDescription(tr("The table below says the same"));
    draw();
}

CountPlot::~CountPlot()
{
    _plot->widget().removeEventFilter(this);
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

Bars CountPlot::barsShown() const
{
    return _table ? BarsOfCount(*_table, _plot->widget()).bars(_selected) : Bars();
}

void CountPlot::draw()
{
    const Bars bars = barsShown();
    _isSideways = bars.isSideways;
    _shown = bars.bars.size();
    _plot->show(bars, colorsFrom(palette()));
    const bool isCut = _table && _shown < _table->counted().size();
    if (std::exchange(_isCut, isCut) != isCut)
        Q_EMIT isCutDidChange();
}

QPointF CountPlot::placeOf(std::size_t row) const
{
    const auto files = static_cast<double>(_table->counted()[row].sum.files);
    return _plot->placeOf(static_cast<double>(row), files / 2);
}

std::vector<std::size_t> CountPlot::rowsBetween(QPointF from, QPointF to) const
{
    const auto [least, greatest] = std::minmax({_plot->barAt(from) + 0.5, _plot->barAt(to) + 0.5});
    const double end = std::min(std::floor(greatest) + 1, static_cast<double>(_shown));
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
    QToolTip::showText(event.globalPos(), plainTip(text, _plot->widget()), &_plot->widget());
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
    const auto rows = rowsBetween(_isSideways ? mouse->position() : _pressed, mouse->position());
    if (event->type() == QEvent::MouseMove && _isPressed && !_isSideways)
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
    _plot->paint(image, BarPlot::Device::Raster, size(), head, [&](QPainter &painter) {
        painter.setFont(font());
        painter.setPen(palette().color(QPalette::Text));
        const int margin = fontMetrics().height() / 2;
        painter.drawText(QRect(margin, 0, width() - 2 * margin, head), Qt::AlignVCenter | Qt::TextWordWrap,
                         title);
    });
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
    const int head = 3 * fontMetrics().height();
    const Bars bars = barsShown();
    _plot->show(bars, colorsFrom(ColorScheme::ownPalette(false)));
    _plot->paint(writer, BarPlot::Device::Vectors, {writer.width(), writer.height() - head}, head,
                 [&](QPainter &painter) {
                     painter.setFont(font());
                     painter.drawText(QRect(0, 0, writer.width(), head), Qt::AlignVCenter | Qt::TextWordWrap,
                                      title);
                 });
    _plot->show(bars, colorsFrom(palette()));
    return bytes.data();
}

} // namespace quorvin
