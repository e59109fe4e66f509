// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "platform/NativePath.h"
#include "process/ReaderRunner.h"
#include "surgery/RemovalLanes.h"

#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>
#include <fcntl.h>
#include <unistd.h>

#include <memory>
#include <optional>
#include <vector>

namespace {

using namespace quorvin;
using bench::secondsOf;

constexpr int kImages = 500;
constexpr QSize kSize(2740, 2050); ///< of noise: 5 MB

/// Photos of noise, with what cameras write; in the working folder, so that it is on a disk.
class Photos {
public:
    Photos() : _folder(QStringLiteral("removal-bench-XXXXXX"))
    {
        QImage noise(kSize, QImage::Format_RGB32);
        QRandomGenerator random(1);
        random.fillRange(reinterpret_cast<quint32 *>(noise.bits()),
                         static_cast<qsizetype>(noise.width()) * noise.height());
        _first = _folder.filePath(QStringLiteral("first.jpg"));
        noise.save(_first, "JPEG", 90);
        const auto image = Exiv2::ImageFactory::open(encodePath(_first).toStdString());
        image->readMetadata();
        image->exifData()["Exif.Image.Make"] = "bench";
        image->exifData()["Exif.Photo.DateTimeOriginal"] = "2021:02:03 04:05:06";
        image->exifData()["Exif.GPSInfo.GPSLatitude"] = "46/1 30/1 0/1";
        image->xmpData()["Xmp.dc.title"] = "bench";
        image->writeMetadata();
        for (int i = 0; i < kImages; ++i)
            _paths.push_back(_folder.filePath(QStringLiteral("%1.jpg").arg(i)));
        renew();
    }

    /// As they were before anything was removed.
    void renew() const
    {
        for (const QString &path : _paths) {
            QFile::remove(path);
            QFile::copy(_first, path);
        }
        ::sync();
    }
    /// Copies of all, each synced.
    void copyAndSync() const
    {
        for (const QString &path : _paths)
            copyAndSync(path, path + QStringLiteral(".copy"));
    }
    void removeCopies() const
    {
        for (const QString &path : _paths)
            QFile::remove(path + QStringLiteral(".copy"));
        ::sync();
    }
    const std::vector<QString> &paths() const { return _paths; }
    QString folder() const { return _folder.path(); }
    qint64 bytesOfOne() const { return QFile(_first).size(); }

private:
    static void copyAndSync(const QString &from, const QString &to)
    {
        const int in = ::open(encodePath(from).constData(), O_RDONLY | O_CLOEXEC);
        const int out = ::open(encodePath(to).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
        constexpr std::size_t kPiece = 1 << 24;
        while (::copy_file_range(in, nullptr, out, nullptr, kPiece, 0) > 0) { }
        ::fsync(out);
        ::close(out);
        ::close(in);
    }

    QTemporaryDir _folder;
    QString _first;
    std::vector<QString> _paths;
};

constexpr oEXIV2Metadata kAll{true, true, true, true, true};

/// Everything removed from all, side by side as the programs do it, against copying and syncing them one
/// after the other; turn and turn about.
void removalAgainstCopying(benchmark::State &state)
{
    const Photos photos;
    double ours = 0;
    double copying = 0;
    for ([[maybe_unused]] auto _ : state) {
        copying += secondsOf([&] { photos.copyAndSync(); });
        photos.removeCopies();
        const auto roots = std::make_shared<RootSet>(QStringList(photos.folder()));
        const auto makeRemover
            = [&] { return std::make_unique<MetadataRemover>(kAll, JobLimits(), makeReaderRunner(roots)); };
        const double round = secondsOf([&] {
            auto path = photos.paths().begin();
            const auto nextOrder = [&]() -> std::optional<MetadataRemover::Order> {
                if (path == photos.paths().end())
                    return std::nullopt;
                return MetadataRemover::Order{.path = *path++};
            };
            treatFiles({makeRemover}, nextOrder, [&](const RemovalReceipt &receipt) {
                if (!receipt.isWritten())
                    state.SkipWithError("a photo was refused");
            });
        });
        photos.renew();
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["ratio"] = ours / copying;
    state.counters["bytes_of_one"] = static_cast<double>(photos.bytesOfOne());
}
BENCHMARK(removalAgainstCopying)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

/// What would go of each, against their records, both in one reader.
void planAgainstRecords(benchmark::State &state)
{
    const Photos photos;
    const auto roots = std::make_shared<RootSet>(QStringList(photos.folder()));
    MetadataRemover remover(kAll, {}, makeReaderRunner(roots));
    const auto reader = makeReaderRunner(roots);
    double ours = 0;
    double records = 0;
    for ([[maybe_unused]] auto _ : state) {
        records += secondsOf([&] {
            for (const QString &path : photos.paths())
                benchmark::DoNotOptimize(reader->run({RecordRequest{path, {}}, {}}));
        });
        const double round = secondsOf([&] {
            for (const QString &path : photos.paths())
                benchmark::DoNotOptimize(remover.planned({.path = path}));
        });
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["ratio"] = ours / records;
}
BENCHMARK(planAgainstRecords)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace
