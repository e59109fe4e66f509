// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/StatExport.h"

#include "platform/AtomicFile.h"
#include "shell/charts/CountPlot.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/FileDialogs.h"
#include "statistics/CountText.h"

#include <QFileDialog>
#include <QIODevice>
#include <QPointer>

#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr std::array kSuffixes{"csv"_L1, "png"_L1, "pdf"_L1}; ///< by `StatExport::Kind`

/// CSV is made of the count, all else is there already.
Expected<void> writeStatistics(const QString &path, const CountTable &table, const QByteArray &picture)
{
    if (!picture.isEmpty())
        return writeWhole(path, picture);
    return writeWhole(path, [&](QIODevice &device) { return writeCount(u"csv"_s, table, device); });
}

/// What a file is called that holds the count of this parameter.
QString fileNameOf(QString parameter)
{
    return parameter.replace(u'/', u' ') + " statistics"_L1;
}

} // namespace

StatExport::StatExport(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void StatExport::exportCount(Kind kind, const CountTablePtr &table, const CountPlot &plot)
{
    const QString suffix = kSuffixes[static_cast<std::size_t>(kind)];
    auto *dialog = makeExportDialog(_window, tr("Export Statistics"), _settings,
                                    fileNameOf(table->count().parameter), suffix);
    connect(dialog, &QFileDialog::fileSelected, this,
            [this, kind, table, shown = QPointer(&plot)](const QString &path) {
                if (shown)
                    write(path, kind, table, *shown);
            });
    dialog->open();
}

void StatExport::write(const QString &path, Kind kind, const CountTablePtr &table, const CountPlot &plot)
{
    const QString title = headlineOf(*table);
    const QByteArray picture = kind == Kind::Png ? plot.png(title)
        : kind == Kind::Pdf                      ? plot.pdf(title)
                                                 : QByteArray();
    _run.start(
        "StatExport",
        [path, table, picture](const RunControl &) {
            const auto written = writeStatistics(path, *table, picture);
            return written ? QString() : tr("%1: %2").arg(path, written.error().description);
        },
        [this, path](const QString &problem) {
            if (problem.isEmpty())
                return Q_EMIT exported(path);
            plainMessage(_window, tr("Export Statistics"), tr("The statistics could not be written."),
                         problem, QMessageBox::Close)
                ->open();
        });
}

} // namespace quorvin
