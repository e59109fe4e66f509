// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/GeneralPane.h"

#include "pictures/Images.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PictureThread.h"
#include "shell/info/CoverView.h"
#include "shell/info/ElidedLabel.h"
#include "shell/info/PrivacyChip.h"
#include "shell/info/StreamTable.h"
#include "shell/outline/OutlineDelegate.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr int kGrid = 8;
constexpr int kMargin = 2 * kGrid;
constexpr int kCoverGap = 3 * kGrid;
constexpr int kValueGap = 2 * OutlineDelegate::kMargin; ///< between a label and its value
constexpr int kNarrow = 560; ///< below this width of the pane the cover stands above the facts
constexpr int kLeastCoverSide = 64;
constexpr int kLargestScale = 3;
constexpr int kLineAlpha = 90; ///< of 255

/// The longest labels that readers give.
constexpr std::array kLongLabels{QLatin1String("Exposure Program"), QLatin1String("Subtitles #10")};

/// A line between parts of the sheet, as quiet as its labels.
class Hairline final : public QWidget {
public:
    Hairline() { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QColor color = palette().color(QPalette::PlaceholderText);
        color.setAlpha(kLineAlpha);
        QPainter(this).fillRect(rect(), color);
    }
};

} // namespace

GeneralPane::GeneralPane(QWidget *parent)
    : Pane(parent),
      _scroll(new QScrollArea(this)),
      _sheet(new QWidget),
      _cover(new CoverView),
      _headline(new ElidedLabel(Qt::ElideMiddle)),
      _folder(new ElidedLabel(Qt::ElideMiddle)),
      _facts(new FactList),
      _privacy(new PrivacyChip),
      _line(new Hairline),
      _streams(new StreamTable),
      _top(new QBoxLayout(QBoxLayout::LeftToRight))
{
    layOut();
    connectParts();
    empty();
}

void GeneralPane::layOut()
{
    _folder->setForegroundRole(QPalette::PlaceholderText);
    _facts->setGap(kValueGap);
    _privacy->setGap(kValueGap);
    setAccessibleRole(_line, QAccessible::Separator);

    auto *block = new QVBoxLayout;
    block->setSpacing(0);
    block->addWidget(_headline);
    block->addSpacing(kGrid / 2);
    block->addWidget(_folder);
    block->addSpacing(kMargin);
    block->addWidget(_facts);
    block->addSpacing(kGrid / 2);
    block->addWidget(_privacy);
    block->addStretch();
    _top->addWidget(_cover, 0, Qt::AlignTop | Qt::AlignLeading);
    _top->addLayout(block, 1);

    auto *all = new QVBoxLayout(_sheet);
    all->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    all->setSpacing(kMargin);
    all->addLayout(_top);
    all->addWidget(_line);
    all->addWidget(_streams);
    all->addStretch(1);

    _sheet->setBackgroundRole(QPalette::Base);
    _sheet->setAutoFillBackground(true);
    _scroll->setBackgroundRole(QPalette::Base);
    _scroll->setFrameShape(QFrame::NoFrame);
    _scroll->setWidgetResizable(true);
    _scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _scroll->setFocusPolicy(Qt::NoFocus);
    _scroll->setWidget(_sheet);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(_scroll);
}

void GeneralPane::connectParts()
{
    connect(_streams, &StreamTable::streamOpened, this, &GeneralPane::streamActivated);
    connect(_streams, &StreamTable::locationOpened, this, &GeneralPane::locationActivated);
    connect(_streams, &StreamTable::selectionDidChange, this, &Pane::selectionDidChange);
    connect(_streams, &StreamTable::rowReached, this, [this](const QRect &row) {
        const QPoint middle = _streams->mapTo(_sheet, row.center());
        _scroll->ensureVisible(middle.x(), middle.y(), 0, row.height());
    });
    connect(_cover, &CoverView::coverDidChange, this, &Pane::selectionDidChange);
    connect(_streams, &StreamTable::menuWanted, this,
            [this](const QPoint &where) { Q_EMIT menuWanted(CommandPlace::StreamMenu, where); });
    connect(_facts, &FactList::menuWanted, this,
            [this](const QPoint &where) { Q_EMIT menuWanted(CommandPlace::FactMenu, where); });
    connect(_facts, &FactList::placeOpened, this, &GeneralPane::locationActivated);
    connect(_privacy, &PrivacyChip::stripWanted, this, &GeneralPane::stripWanted);
    connect(&_towns, &TownLookup::ready, this, &GeneralPane::refill);
    connect(_cover, &CoverView::opened, this, &GeneralPane::coverOpened);
    _cover->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(_cover, &QWidget::customContextMenuRequested, this, [this](const QPoint &at) {
        Q_EMIT menuWanted(CommandPlace::CoverMenu, _cover->mapToGlobal(at));
    });
}

void GeneralPane::empty()
{
    ++_shown;
    _cover->clear();
    _headline->setWholeText({});
    _folder->setWholeText({});
    _facts->setFacts({});
    _privacy->setKinds({}, false);
    _streams->setLines({});
    _line->hide();
}

void GeneralPane::setSum(std::optional<GeneralSheet> sum)
{
    if (sum == _sum)
        return;
    const bool isSame = sum && _sum && sum->headline == _sum->headline;
    const int place = _scroll->verticalScrollBar()->value();
    _sum = std::move(sum);
    refill();
    // It grows while files are read.
    if (isSame)
        _scroll->verticalScrollBar()->setValue(place);
}

void GeneralPane::fill(const QuorvinData *record)
{
    const QString path = record && !_sum ? record->filename() : QString();
    const bool isSame = path == std::exchange(_path, path) && !path.isEmpty();
    const int place = _scroll->verticalScrollBar()->value();
    empty();
    if (_sum) {
        showSheet(*_sum);
        _cover->setIcon(_sum->mimeName.isEmpty() ? symbolIcon(QStringLiteral("several-files"))
                                                 : mimeIcon(_sum->mimeName));
    } else if (record) {
        const std::optional<Location> &location = record->mapLocation();
        const auto placeName = location ? _towns.placeOf(*location) : std::nullopt;
        showSheet(sheetOf(*record, placeName.value_or(QString())));
        showCover(*record);
        _privacy->setKinds(privateKindsIn(record->groups()), record->isImage());
        // The file was read again.
        if (isSame)
            _scroll->verticalScrollBar()->setValue(place);
    }
}

void GeneralPane::showSheet(const GeneralSheet &sheet)
{
    _headline->setWholeText(sheet.headline);
    _folder->setWholeText(sheet.folder);
    _facts->setFacts(sheet.facts);
    _streams->setLines(sheet.lines);
    _line->setVisible(!_streams->isEmpty());
    _scroll->verticalScrollBar()->setValue(0);
}

void GeneralPane::showCover(const QuorvinData &record)
{
    const GeneralFacts &general = record.generalInfo();
    _cover->setIcon(general.fileUTI ? mimeIcon(*general.fileUTI) : fileNameIcon(record.filename()));
    if (general.packedCover.isEmpty())
        return;
    const QByteArray cover = general.packedCover;
    const qreal ratio = devicePixelRatioF();
    decodeElsewhere(
        this,
        [cover] { return Utilities::thumbnailedImageFromData(cover, CoverView::kSide * kLargestScale); },
        [this, ratio, shown = _shown](QImage image) {
            if (shown != _shown || image.isNull())
                return;
            image.setDevicePixelRatio(ratio);
            _cover->setCoverImage(image);
        });
}

void GeneralPane::applyLook(const RowLook &look)
{
    setFont(look.font);
    _headline->setFont(look.headlineFont());
    _streams->setLook(look);
    const Qt::Alignment alignment = look.rightAlignsParameters ? Qt::AlignTrailing : Qt::AlignLeading;
    _facts->setLabelsAlignment(alignment);
    _privacy->setLabelsAlignment(alignment);
    place();
}

bool GeneralPane::canCopy() const
{
    return _streams->canCopy() || _facts->canCopy();
}

void GeneralPane::copy() const
{
    if (_facts->canCopy())
        _facts->copy();
    else
        _streams->copy();
}

void GeneralPane::copyValues() const
{
    if (_facts->canCopy())
        _facts->copyValue();
    else
        _streams->copyValues();
}

void GeneralPane::describe(CommandState &state) const
{
    state.canCopyValue = canCopy();
    state.showsCover = _cover->isCoverFromFile();
    state.selectsStream = _streams->selectedStream() != nullptr;
}

void GeneralPane::openCurrent()
{
    _streams->openCurrent();
}

void GeneralPane::registerAt(CommandSet &commands)
{
    commands.on(Command::copyCover, [this] { QGuiApplication::clipboard()->setImage(_cover->coverImage()); });
}

int GeneralPane::widestLabel() const
{
    const QFontMetrics metrics(_streams->font());
    int width = 0;
    for (const QLatin1String label : kLongLabels)
        width = std::max(width, metrics.horizontalAdvance(label));
    return width;
}

void GeneralPane::place()
{
    // The same whether the sheet scrolls or not.
    const int room = width() - _scroll->verticalScrollBar()->sizeHint().width();
    const bool isNarrow = width() < kNarrow;
    const QFontMetrics metrics(_streams->font());
    int widestFact = metrics.horizontalAdvance(_privacy->label());
    for (const QString &label : factLabels())
        widestFact = std::max(widestFact, metrics.horizontalAdvance(label));

    const int beside = isNarrow ? 0 : CoverView::kSide + kCoverGap;
    const int wanted = kMargin + std::max(widestLabel(), beside + widestFact);
    const int labelsEnd = std::min(wanted, room * 45 / 100);
    int side = isNarrow ? std::min(room / 2, height() * 2 / 5) : labelsEnd - kMargin - kCoverGap - widestFact;
    side = std::clamp(side, kLeastCoverSide, CoverView::kSide);
    _cover->setFixedSize(side, side);
    _top->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    _top->setSpacing(isNarrow ? kMargin : kCoverGap);
    const int blockStart = kMargin + (isNarrow ? 0 : side + kCoverGap);
    const int labelsWidth = std::max(labelsEnd - blockStart, 0);
    _facts->setLabelsWidth(labelsWidth);
    _privacy->setLabelsWidth(labelsWidth);
    _streams->setNamesWidth(labelsEnd - kMargin + OutlineDelegate::kMargin);
}

void GeneralPane::resizeEvent(QResizeEvent *event)
{
    Pane::resizeEvent(event);
    place();
}

} // namespace quorvin
