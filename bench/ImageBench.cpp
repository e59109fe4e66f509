// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "readers/RecordBuilder.h"

#include <QFileInfo>
#include <QProcess>

#include <benchmark/benchmark.h>
#include <exiv2/exiv2.hpp>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using namespace quorvin;
using bench::mediaFiles;
using bench::secondsOf;

const std::vector<QString> &jpegFiles()
{
    static const std::vector<QString> files = [] {
        std::vector<QString> jpegs;
        std::ranges::copy_if(mediaFiles(), std::back_inserter(jpegs), [](const QString &path) {
            const QString extension = QFileInfo(path).suffix().toLower();
            return (extension == QLatin1String("jpg") || extension == QLatin1String("jpeg"))
                && RecordBuilder({}).dataAboutFile(path).value()->isImage();
        });
        return jpegs;
    }();
    return files;
}

std::size_t printedLength(const auto &data, const Exiv2::ExifData *context)
{
    std::size_t length = 0;
    for (const auto &item : data)
        length += item.key().size() + item.tagLabel().size() + item.print(context).size();
    return length;
}

void bareLibrary(const std::string &path)
try {
    const auto image = Exiv2::ImageFactory::open(path);
    image->readMetadata();
    benchmark::DoNotOptimize(printedLength(image->exifData(), &image->exifData())
                             + printedLength(image->iptcData(), nullptr)
                             + printedLength(image->xmpData(), nullptr));
} catch (const Exiv2::Error &) {
}

/// A record of each JPEG against exiv2 opening, reading and printing every tag, turn and turn about.
void imageAgainstBareLibrary(benchmark::State &state)
{
    RecordOptions options;
    options.keepCover = state.range(0) != 0;
    const RecordBuilder builder(options);
    double ours = 0;
    double bare = 0;
    for ([[maybe_unused]] auto _ : state) {
        double round = 0;
        for (const QString &path : jpegFiles()) {
            const std::string native = path.toStdString();
            bare += secondsOf([&] { bareLibrary(native); });
            round += secondsOf([&] { benchmark::DoNotOptimize(builder.dataAboutFile(path)); });
        }
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["files"] = static_cast<double>(jpegFiles().size());
    state.counters["ratio"] = ours / bare;
}
BENCHMARK(imageAgainstBareLibrary)
    ->ArgName("cover")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(3);

void runQuietly(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.waitForFinished(-1);
}

/// Records with covers on one thread against one process of exiftool that writes the same files as JSON.
void imageAgainstExiftool(benchmark::State &state)
{
    const RecordBuilder builder({});
    double ours = 0;
    double exiftool = 0;
    QStringList arguments{QStringLiteral("-json")};
    for (const QString &path : jpegFiles())
        arguments.append(path);
    for ([[maybe_unused]] auto _ : state) {
        exiftool += secondsOf([&] { runQuietly(QStringLiteral("exiftool"), arguments); });
        const double round = secondsOf([&] {
            for (const QString &path : jpegFiles())
                benchmark::DoNotOptimize(builder.dataAboutFile(path));
        });
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["times_faster"] = exiftool / ours;
}
BENCHMARK(imageAgainstExiftool)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace
