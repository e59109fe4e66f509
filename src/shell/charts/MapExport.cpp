// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapExport.h"

#include "places/PlaceWriter.h"
#include "platform/AtomicFile.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/FileDialogs.h"

#include <QFileDialog>
#include <QImageWriter>

#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

Expected<void> putPlaces(const PlacesDocument &document, const RunControl &control, QIODevice &device)
{
    PlaceWriter writer(document.format, device, document.skipPrivate);
    writer.begin();
    int done = 0;
    for (const FilelistItemPtr &item : document.files) {
        if (control.isStopped())
            return failure(u"cancelled"_s);
        const QuorvinDataPtr record = item->quorvinData();
        const auto file = record ? placedFile(item->filename(), *record) : std::nullopt;
        if (file) {
            if (auto written = writer.add(*file); !written)
                return written;
        }
        control.report(++done, static_cast<int>(document.files.size()));
    }
    return writer.finish();
}

Expected<void> putPicture(const QImage &picture, QIODevice &device)
{
    QImageWriter writer(&device, "png");
    return writer.write(picture) ? Expected<void>() : failure(writer.errorString());
}

} // namespace

Expected<void> writePlaces(const QString &path, const PlacesDocument &document, const RunControl &control)
{
    return writeWhole(path, [&](QIODevice &device) { return putPlaces(document, control, device); });
}

MapExport::MapExport(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void MapExport::exportPlaces(const PlacesDocument &document)
{
    auto *dialog = makeExportDialog(_window, tr("Export Map"), _settings, tr("Map"), document.format);
    connect(dialog, &QFileDialog::fileSelected, this, [this, document](const QString &path) {
        start(path,
              [path, document](const RunControl &control) { return writePlaces(path, document, control); });
    });
    dialog->open();
}

void MapExport::exportPicture(const QImage &picture)
{
    auto *dialog = makeExportDialog(_window, tr("Export Map"), _settings, tr("Map"), u"png"_s);
    connect(dialog, &QFileDialog::fileSelected, this, [this, picture](const QString &path) {
        start(path, [path, picture](const RunControl &) {
            return writeWhole(path, [&](QIODevice &device) { return putPicture(picture, device); });
        });
    });
    dialog->open();
}

void MapExport::start(const QString &path, std::function<Expected<void>(const RunControl &)> work)
{
    _run.start("MapExport", std::move(work), [this, path](const Expected<void> &written) {
        if (written)
            return Q_EMIT exported(path);
        plainMessage(_window, tr("Export Map"), tr("The map could not be written."),
                     tr("%1: %2").arg(path, written.error().description), QMessageBox::Close)
            ->open();
    });
}

} // namespace quorvin
