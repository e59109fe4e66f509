// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapWindow.h"

#include "shell/charts/ChartTable.h"
#include "shell/charts/MapCanvas.h"
#include "shell/charts/MapExportBar.h"
#include "shell/charts/MapMenu.h"
#include "shell/charts/MapModel.h"
#include "shell/charts/NumberAir.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistController.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr QSize kFirstMapSize(1000, 720);
constexpr int kMapRestMilliseconds = 150; ///< so long the map rests before the list is narrowed to it
constexpr int kMostNamed = 4; ///< files of a mark
constexpr qsizetype kMostRows = 1'000; ///< that are selected with the files of a mark
constexpr double kPole = 90;

/// What is in view. At the edge of the world it reaches to the end of it, which some maps do not show.
MapArea areaOf(const MapView &view)
{
    const QRectF world = flatWorld(view.type);
    const QRectF flat = view.flatRect() & world;
    const Location first = unflattened(view.type, flat.topLeft());
    const Location last = unflattened(view.type, flat.bottomRight());
    return {.south = flat.bottom() < world.bottom() ? last.latitude : -kPole,
            .west = first.longitude,
            .north = flat.top() > world.top() ? first.latitude : kPole,
            .east = last.longitude};
}

bool isSame(const LocatedFilesPtr &one, const LocatedFilesPtr &other)
{
    return one && one->type == other->type && one->files == other->files
        && one->locations == other->locations;
}

} // namespace

MapWindow::MapWindow(FilelistController &files, LiveSettings &settings, QWidget *window)
    : QWidget(window, Qt::Window),
      _files(files),
      _settings(settings),
      _watch(files, this),
      _canvas(new MapCanvas),
      _model(new MapModel([this](const Location &where) { return _towns.placeOf(where).value_or(QString()); },
                          this)),
      _menu(new MapMenu(this)),
      _table(new QTableView),
      _type(new QComboBox),
      _onlyInView(new QCheckBox(tr("Only files in view"))),
      _note(plainLabel())
{
    setAccessibleRole(this, QAccessible::Window);
    setWindowTitle(tr("Map"));
    _areaTimer.setSingleShot(true);
    _areaTimer.setInterval(kMapRestMilliseconds);
    layOut();
    connectParts();
    connectTable();
    resize(kFirstMapSize);
    setType(settings.integer(Setting::mapType));
    criteriaDidChange();
}

QWidget *MapWindow::makeControls()
{
    _type->addItems({tr("Web Mercator"), tr("Whole Earth, with the poles")});
    setChoiceName(_type, tr("Kind of map"));
    _onlyInView->setToolTip(plainTip(tr("List only files recorded in this part of the Earth")));
    auto *controls = new QWidget;
    auto *row = new QHBoxLayout(controls);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_type);
    const auto add = [&](const QString &text, const QString &tip, void (MapCanvas::*action)()) {
        auto *button = new QPushButton(text);
        button->setToolTip(plainTip(tip));
        button->setAccessibleName(tip);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, _canvas, action);
        row->addWidget(button);
        return button;
    };
    for (QPushButton *const narrow :
         {add(QStringLiteral("+"), tr("Enlarge the map"), &MapCanvas::zoomIn),
          add(QStringLiteral("\u2212"), tr("Show more of the map"), &MapCanvas::zoomOut)})
        narrow->setMaximumWidth(narrow->sizeHint().height() * 3 / 2);
    add(tr("Show All"), tr("Show all files on the map"), &MapCanvas::showAll);
    row->addStretch();
    row->addWidget(_onlyInView);
    return controls;
}

QPushButton *MapWindow::makeCount(const Files LocatedFiles::*files)
{
    auto *button = new QPushButton;
    button->setFlat(true);
    button->setAutoDefault(false);
    button->setToolTip(plainTip(tr("Select these files in the list")));
    connect(button, &QPushButton::clicked, this, [this, files] {
        choose((*_located).*files, QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier));
    });
    button->hide();
    _counts.push_back({button, files});
    return button;
}

QWidget *MapWindow::makeCounts()
{
    auto *exports = new MapExportBar(*_canvas, _settings, this);
    connect(exports, &MapExportBar::said, _note, &QLabel::setText);
    auto *counts = new QWidget;
    auto *row = new QHBoxLayout(counts);
    row->setContentsMargins(0, 0, 0, 0);
    for (const auto files :
         {&LocatedFiles::files, &LocatedFiles::without, &LocatedFiles::impossible, &LocatedFiles::unread})
        row->addWidget(makeCount(files));
    row->addWidget(_note, 1);
    row->addWidget(exports);
    return counts;
}

void MapWindow::layOut()
{
    _note->setForegroundRole(QPalette::PlaceholderText);
    _note->setMinimumWidth(1);
    auto *mapAndTable = new QSplitter(Qt::Vertical);
    mapAndTable->setChildrenCollapsible(false);
    mapAndTable->addWidget(_canvas);
    mapAndTable->addWidget(_table);
    // Readers go by this order, which the splitter turns round.
    _canvas->lower();
    mapAndTable->setStretchFactor(0, 1);
    mapAndTable->setSizes({kFirstMapSize.height() * 2 / 3, kFirstMapSize.height() / 3});
    auto *column = new QVBoxLayout(this);
    column->addWidget(makeControls());
    column->addWidget(mapAndTable, 1);
    column->addWidget(makeCounts());
    _canvas->setFocus();
}

void MapWindow::connectParts()
{
    connect(&_watch, &LocatedFilesWatch::located, this, &MapWindow::showFiles);
    connect(&_towns, &TownLookup::ready, _model, &MapModel::placesDidChange);
    connect(&_files, &FilelistController::currentFileDidChange, this, &MapWindow::showCurrent);
    connect(_type, &QComboBox::activated, this, [this](int type) {
        _settings.set(Setting::mapType, type);
        setType(type);
    });
    connect(_canvas, &MapCanvas::filesChosen, this,
            [this](const std::vector<quint32> &places, bool adds) { choose(filesAt(places), adds); });
    connect(_canvas, &MapCanvas::filesReached, this, &MapWindow::showReached);
    connect(_canvas, &MapCanvas::spotOpened, this,
            [this](const std::vector<quint32> &places, const QPoint &where) {
                _menu->openSpot(filesAt(places), where);
            });
    connect(_canvas, &MapCanvas::menuWanted, this,
            [this](const std::vector<quint32> &places, const Location &location, const QPoint &where) {
                _menu->openPlace(filesAt(places), location, where);
            });
    connect(_menu, &MapMenu::filesChosen, this, [this](const Files &files) { choose(files, false); });
    connect(_canvas, &MapCanvas::viewDidChange, this, [this] {
        if (_onlyInView->isChecked())
            _areaTimer.start();
    });
    connect(&_areaTimer, &QTimer::timeout, this, &MapWindow::applyArea);
    connect(_onlyInView, &QCheckBox::toggled, this, &MapWindow::applyArea);
    connect(&_files.filtering(), &FilelistFiltering::criteriaDidChange, this, &MapWindow::criteriaDidChange);
    for (const QKeySequence &keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
}

void MapWindow::connectTable()
{
    giveNumbersAir(*_table);
    setUpChartTable(*_table, _model, tr("Files on the map"));
    _table->setContextMenuPolicy(Qt::CustomContextMenu);
    const int letter = fontMetrics().averageCharWidth();
    for (const auto &[column, letters] : {std::pair(MapModel::File, 32), std::pair(MapModel::Latitude, 18),
                                          std::pair(MapModel::Longitude, 18), std::pair(MapModel::Date, 34)})
        _table->horizontalHeader()->resizeSection(column, letters * letter);
    _table->horizontalHeader()->setSectionResizeMode(MapModel::Place, QHeaderView::Stretch);
    _table->installEventFilter(this);
    connect(_table, &QTableView::clicked, this,
            [this] { chooseRows(QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier)); });
    connect(_table, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        _canvas->showLocation(_located->locations[static_cast<std::size_t>(index.row())]);
    });
    connect(_table, &QWidget::customContextMenuRequested, this, [this](const QPoint &where) {
        const auto rows = selectedRows();
        if (!rows.empty())
            _menu->openPlace(filesAt(rows), _located->locations[rows.front()],
                             _table->viewport()->mapToGlobal(where));
    });
}

void MapWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    _watch.setActive(true);
}

void MapWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    _watch.setActive(false);
}

bool MapWindow::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const key
        = event->type() == QEvent::KeyPress ? static_cast<const QKeyEvent *>(event) : nullptr;
    if (!key || (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter))
        return QWidget::eventFilter(watched, event);
    chooseRows(key->modifiers().testFlag(Qt::ControlModifier));
    return true;
}

void MapWindow::setType(int type)
{
    _type->setCurrentIndex(type == static_cast<int>(MapType::WholeEarth) ? 1 : 0);
    const auto chosen = static_cast<MapType>(_type->currentIndex());
    _canvas->setType(chosen);
    _watch.setType(chosen);
}

void MapWindow::showLocation(const Location &location)
{
    _canvas->showLocation(location);
}

void MapWindow::showFiles(const LocatedFilesPtr &files)
{
    _located = files;
    // Marks and rows that stay keep the keyboard.
    if (!isSame(_canvas->files(), files)) {
        _canvas->setFiles(files);
        _model->setFiles(files);
        _note->clear();
    }
    showCounts();
    showCurrent();
}

void MapWindow::showCounts()
{
    const std::array texts{tr("%1 on the map"), tr("%1 without position"), tr("%1 with an impossible one"),
                           tr("%1 not read")};
    for (std::size_t i = 0; i < _counts.size(); ++i) {
        const auto size = static_cast<qint64>(((*_located).*_counts[i].files).size());
        _counts[i].button->setText(texts[i].arg(groupedCount(size)));
        _counts[i].button->setEnabled(size > 0);
        _counts[i].button->setVisible(size > 0 || i == 0);
    }
}

void MapWindow::showCurrent()
{
    if (_located)
        _canvas->setCurrent(_located->placeOf(_files.worker().currentFile()));
}

void MapWindow::showReached(const std::vector<quint32> &places)
{
    if (places.empty())
        return _note->clear();
    const LocatedFiles &all = *_located;
    QStringList names;
    for (std::size_t i = 0; i < std::min<std::size_t>(places.size(), kMostNamed); ++i)
        names.append(QFileInfo(all.files[places[i]]->filename()).fileName());
    if (places.size() > kMostNamed)
        names.append(tr("and %1 more").arg(groupedCount(static_cast<qint64>(places.size()) - kMostNamed)));
    const QString where = _towns.placeOf(all.locations[places.front()]).value_or(QString());
    const QString text = where.isEmpty() ? names.join(u", ") : tr("%1 — %2").arg(names.join(u", "), where);
    _note->setText(text);
    _canvas->setAccessibleDescription(text);
}

MapWindow::Files MapWindow::filesAt(const std::vector<quint32> &places) const
{
    Files files;
    files.reserve(places.size());
    for (const quint32 place : places)
        files.push_back(_located->files[place]);
    return files;
}

std::vector<quint32> MapWindow::selectedRows() const
{
    std::vector<quint32> rows;
    for (const QModelIndex &index : _table->selectionModel()->selectedRows())
        rows.push_back(static_cast<quint32>(index.row()));
    std::ranges::sort(rows);
    return rows;
}

void MapWindow::choose(const Files &files, bool adds)
{
    _files.selection().selectFiles(files,
                                   adds ? FilelistSelection::Select : FilelistSelection::ClearAndSelect);
}

void MapWindow::chooseRows(bool adds)
{
    choose(filesAt(selectedRows()), adds);
}

void MapWindow::applyArea()
{
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.area = _onlyInView->isChecked() ? std::optional(areaOf(_canvas->view())) : std::nullopt;
    _files.filtering().setCriteria(criteria);
}

void MapWindow::criteriaDidChange()
{
    const QSignalBlocker blocker(_onlyInView);
    _onlyInView->setChecked(_files.filtering().criteria().area.has_value());
}

} // namespace quorvin
