// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/GeneralPane.h"

#include "pictures/Images.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PictureThread.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/CoverView.h"
#include "shell/outline/OutlineDelegate.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QStyle>
#include <QTreeView>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kGrid = 8;
constexpr int kLargestScale = 3;

/// The lines as nodes of a tree.
ExtTreeItems treeOf(const std::vector<GeneralLine> &lines)
{
    ExtTreeItems items;
    for (const GeneralLine &line : lines) {
        if (line.isLocation)
            items.push_back(ExtTreeItem::locationItemWithName(line.name, line.value.plain));
        else if (line.isMediaStream())
            items.push_back(
                ExtTreeItem::mediaStreamItemWithKey(line.key, line.name, line.value, line.streamIndex));
        else
            items.push_back(ExtTreeItem::itemWithName(line.name, line.value.plain));
    }
    return items;
}

} // namespace

GeneralPane::GeneralPane(QWidget *parent) : Pane(parent), _cover(new CoverView(this))
{
    auto *facts = new QGridLayout;
    facts->setHorizontalSpacing(kGrid);
    facts->setVerticalSpacing(kGrid / 2);
    facts->setColumnStretch(1, 1);
    _kind = addFact(facts, 1, tr("Kind:"));
    _format = addFact(facts, 2, tr("Format:"));
    _size = addFact(facts, 3, tr("Size:"));
    _secondary = addFact(facts, 4, {});
    facts->setRowStretch(0, 1);
    facts->setRowStretch(5, 1);

    auto *top = new QHBoxLayout;
    top->setSpacing(3 * kGrid);
    top->addWidget(_cover);
    top->addLayout(facts, 1);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(2 * kGrid, 2 * kGrid, 2 * kGrid, kGrid);
    all->setSpacing(2 * kGrid);
    all->addLayout(top);
    setUpStreams();
    all->addWidget(_streams, 1);
    empty();
}

GeneralPane::Fact GeneralPane::addFact(QGridLayout *grid, int row, const QString &heading)
{
    const Fact fact{plainLabel(heading), plainLabel()};
    fact.heading->setAlignment(Qt::AlignTrailing | Qt::AlignTop);
    fact.heading->setForegroundRole(QPalette::PlaceholderText);
    // Beside its heading, also where a value reads the other way.
    fact.value->setAlignment(QStyle::visualAlignment(QGuiApplication::layoutDirection(), Qt::AlignLeading)
                             | Qt::AlignAbsolute | Qt::AlignTop);
    fact.value->setWordWrap(true);
    fact.value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fact.heading->setBuddy(fact.value);
    grid->addWidget(fact.heading, row, 0);
    grid->addWidget(fact.value, row, 1);
    return fact;
}

void GeneralPane::setFact(const Fact &fact, const QString &value)
{
    fact.value->setText(value);
    fact.heading->setVisible(!value.isEmpty() && !fact.heading->text().isEmpty());
    fact.value->setVisible(!value.isEmpty());
}

void GeneralPane::setUpStreams()
{
    _streams = new QTreeView;
    _delegate = new OutlineDelegate(_streams, _streamsTree);
    _streams->setModel(&_streamsTree);
    _streams->setItemDelegate(_delegate);
    _streams->setHeaderHidden(true);
    _streams->setRootIsDecorated(false);
    _streams->setIndentation(0);
    _streams->setFrameShape(QFrame::NoFrame);
    _streams->setSelectionMode(QTreeView::ExtendedSelection);
    _streams->setVerticalScrollMode(QTreeView::ScrollPerPixel);
    _streams->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    _streams->setAllColumnsShowFocus(true);
    _streams->setEditTriggers(QTreeView::NoEditTriggers);
    _streams->setAccessibleName(tr("Streams"));
    QPalette palette = _streams->palette();
    palette.setBrush(QPalette::Base, Qt::transparent);
    _streams->setPalette(palette);
    connect(_streams, &QTreeView::activated, this, &GeneralPane::activate);
    connect(_streams->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Pane::selectionDidChange);
}

void GeneralPane::empty()
{
    ++_shown;
    _cover->clear();
    _secondary.heading->setText({});
    for (const Fact &fact : {_kind, _format, _size, _secondary})
        setFact(fact, {});
    _streamsTree.setContent({});
}

void GeneralPane::fill(const QuorvinData *record)
{
    empty();
    if (!record)
        return;
    const GeneralFacts &general = record->generalInfo();
    setFact(_kind, general.fileKind.value_or(QString()));
    setFact(_format, general.format);
    setFact(_size, general.filesize);
    if (!general.duration.isEmpty()) {
        _secondary.heading->setText(tr("Duration:"));
        setFact(_secondary,
                general.bitrate.isEmpty() ? general.duration
                                          : QStringLiteral("%1 (%2)").arg(general.duration, general.bitrate));
    } else if (general.imageSize != QString()) {
        _secondary.heading->setText(tr("Image Size:"));
        setFact(_secondary, general.imageSizeMP.value_or(QString()));
        _secondary.heading->show();
    }
    showCover(*record);
    _streamsTree.setContent(treeOf(general.lines));
    fitColumns();
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

void GeneralPane::setLook(const RowLook &look)
{
    _delegate->wrapsLongLines = look.wrapsLongLines;
    _streams->setFont(look.font);
    fitColumns();
}

bool GeneralPane::canCopy() const
{
    return _streams->hasFocus() && _streams->selectionModel()->hasSelection();
}

void GeneralPane::copy() const
{
    QModelIndexList rows = _streams->selectionModel()->selectedRows();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    QStringList lines;
    for (const QModelIndex &row : std::as_const(rows))
        lines.append(_streamsTree.itemAt(row)->extValue());
    QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

void GeneralPane::activate(const QModelIndex &index)
{
    const ExtTreeItem *item = _streamsTree.itemAt(index);
    if (item && item->isLocation())
        Q_EMIT locationActivated();
    else if (item && item->isMediaStream())
        Q_EMIT streamActivated(*item->key(), item->mediaStreamIndex());
}

/// The names as wide as they are, up to a third; the values take the rest.
void GeneralPane::fitColumns()
{
    const QFontMetrics metrics(_streams->font());
    int names = 0;
    for (const ExtTreeItemPtr &item : _streamsTree.content())
        names = std::max(names, metrics.horizontalAdvance(item->name()));
    const int wanted = std::clamp(names + 3 * kGrid, CoverView::kSide / 3,
                                  std::max(width() / 3, 1 + CoverView::kSide / 3));
    _streams->header()->resizeSection(ExtTreeModel::Name, wanted);
    Q_EMIT _delegate->sizeHintChanged({});
}

void GeneralPane::resizeEvent(QResizeEvent *event)
{
    Pane::resizeEvent(event);
    // A narrow window keeps room for the facts.
    const int side = std::clamp(std::min(width() * 2 / 5, height() * 1 / 2), 64, CoverView::kSide);
    _cover->setFixedSize(side, side);
    fitColumns();
}

} // namespace quorvin
