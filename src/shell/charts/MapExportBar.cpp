// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapExportBar.h"

#include "places/PlaceWriter.h"
#include "shell/charts/MapCanvas.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

namespace quorvin {

MapExportBar::MapExportBar(MapCanvas &canvas, LiveSettings &settings, QWidget *window)
    : QWidget(window),
      _canvas(canvas),
      _export(new MapExport(settings, window)),
      _button(new QPushButton(tr("Export…"))),
      _stop(new QPushButton(tr("Stop")))
{
    for (QPushButton *const button : {_stop, _button})
        button->setAutoDefault(false);
    _stop->setToolTip(plainTip(tr("Stop the export; nothing is written")));
    _stop->hide();
    _button->setMenu(new QMenu(_button));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_stop);
    row->addWidget(_button);
    addFormats();
    followRun();
}

void MapExportBar::addFormats()
{
    for (const QString &format : placeFormats())
        connect(
            _button->menu()->addAction(
                tr("Files as %1…")
                    .arg(format == QLatin1String("geojson") ? QStringLiteral("GeoJSON") : format.toUpper())),
            &QAction::triggered, this, [this, format] {
                if (const LocatedFilesPtr &all = _canvas.files())
                    _export->exportPlaces({format, all->files, _skipsPrivate->isChecked()});
            });
    connect(_button->menu()->addAction(tr("Map as PNG…")), &QAction::triggered, this,
            [this] { _export->exportPicture(_canvas.picture()); });
    _button->menu()->addSeparator();
    _skipsPrivate = _button->menu()->addAction(tr("Leave Out Names and Paths"));
    _skipsPrivate->setCheckable(true);
}

void MapExportBar::followRun()
{
    BackgroundRunBase &run = _export->run();
    connect(_stop, &QPushButton::clicked, &run, &BackgroundRunBase::cancel);
    connect(&run, &BackgroundRunBase::progressed, this, [this](int done, int total) {
        _stop->show();
        Q_EMIT said(tr("Exporting: %1 of %2").arg(groupedCount(done), groupedCount(total)));
    });
    connect(&run, &BackgroundRunBase::ended, this, [this] {
        _stop->hide();
        Q_EMIT said({});
    });
    connect(_export, &MapExport::exported, this,
            [this](const QString &path) { Q_EMIT said(tr("Exported to “%1”").arg(path)); });
}

} // namespace quorvin
