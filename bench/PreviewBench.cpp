// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pictures/WholePicture.h"
#include "platform/Settings.h"
#include "shell/preview/PreviewPanel.h"
#include "shell/session/LiveSettings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QThread>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <random>

namespace {

using namespace quorvin;

constexpr QSize kPhotoSize(6000, 4000);
constexpr int kPhotoQuality = 92;
constexpr int kPanelSide = 820; ///< pixels that the panel has room for at first
constexpr int kLongest = 10'000; ///< milliseconds, as the next
constexpr unsigned long kRest = 500;

/// As a camera makes it: shapes that a decoder has work with, and noise over them.
QImage photo()
{
    QImage image(kPhotoSize, QImage::Format_RGB32);
    std::mt19937 random(1);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const auto noise = static_cast<int>(random() % 16);
            const int shape = (x / 40 + y / 25) % 2 * 60;
            line[x] = qRgb(x * 180 / image.width() + noise, y * 160 / image.height() + shape + noise,
                           shape + noise);
        }
    }
    return image;
}

/// From the key until the panel says that the file is shown; wall clock, in milliseconds.
double millisecondsToShow(PreviewPanel &panel, QObject &user, const QString &path)
{
    QElapsedTimer clock;
    clock.start();
    panel.open(&user, path);
    while (!panel.isSettled() && clock.elapsed() < kLongest) {
        QApplication::processEvents();
        QThread::usleep(100);
    }
    return static_cast<double>(clock.nsecsElapsed()) * 1e-6;
}

/// Processor time of what the panel has its reader do for it, in milliseconds.
double decodingMilliseconds(const QString &path, int side)
{
    const std::clock_t before = std::clock();
    benchmark::DoNotOptimize(pictureOfFile(path, side));
    return static_cast<double>(std::clock() - before) * 1e3 / CLOCKS_PER_SEC;
}

/// A photo of 24 megapixels in the panel: at the first key, which starts its program, and at those that
/// follow.
void previewOfPhoto(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString one = folder.filePath(QStringLiteral("one.jpg"));
    const QString other = folder.filePath(QStringLiteral("other.jpg"));
    photo().save(one, "jpg", kPhotoQuality);
    QFile::copy(one, other);
    Settings values{QString()};
    LiveSettings settings(values);
    QObject user;
    PreviewPanel panel(settings);
    state.counters["first_ms"] = millisecondsToShow(panel, user, one);
    double longest = 0;
    bool isOther = false;
    for ([[maybe_unused]] auto _ : state) {
        // A reader that is given up is not part of the next figure.
        QThread::msleep(kRest);
        isOther = !isOther;
        const double taken = millisecondsToShow(panel, user, isOther ? other : one);
        longest = std::max(longest, taken);
        state.SetIterationTime(taken * 1e-3);
    }
    state.counters["longest_ms"] = longest;
    state.counters["decode_cpu_ms"] = decodingMilliseconds(one, kPanelSide);
    state.counters["file_MB"] = static_cast<double>(QFile(one).size()) * 1e-6;
}
BENCHMARK(previewOfPhoto)->Iterations(10)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
