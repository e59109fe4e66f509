// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "export/ExportFormats.h"
#include "readers/RecordBuilder.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>

namespace {

using namespace quorvin;
using bench::mediaFiles;
using bench::secondsOf;

constexpr std::size_t kRecords = 10'000;
constexpr double kMegabyte = 1e6;

/// So many entries, of the records of a few real files.
const std::vector<ExportEntry> &entries()
{
    static const std::vector<ExportEntry> made = [] {
        std::vector<ExportEntry> list;
        for (const QString &path : mediaFiles())
            list.push_back({path, path, *RecordBuilder({}).dataAboutFile(path)});
        const std::size_t own = list.size();
        while (list.size() < kRecords)
            list.push_back(list[list.size() % own]);
        return list;
    }();
    return made;
}

/// A file in memory, so that no disk is measured.
QString benchFile()
{
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/quorvin-bench-XXXXXX"));
    return folder.filePath(QStringLiteral("document"));
}

void writeDocument(const QString &format, QIODevice &device)
{
    const auto writer = makeExportWriter(format, device, false);
    for (const ExportEntry &entry : entries())
        static_cast<void>(writer->write(entry));
    static_cast<void>(writer->finish());
}

void exportToFile(const QString &format)
{
    QFile file(benchFile());
    if (file.open(QIODevice::WriteOnly))
        writeDocument(format, file);
}

/// The same map that the JSON writer writes, in the types of Qt.
QJsonObject jsonObject(const QuorvinData &data)
{
    QJsonObject file;
    const ExportInfo info = data.computeExportInfo();
    for (const ExportSection &section : info.sections) {
        QJsonArray streams;
        for (const ExportStream &stream : section.streams) {
            QJsonArray rows;
            for (const ExportRow &row : stream)
                rows.append(QJsonObject{{QStringLiteral("option"), row.term->key},
                                        {QStringLiteral("name"), row.term->label},
                                        {QStringLiteral("value"), QString::fromUtf8(row.value)}});
            streams.append(rows);
        }
        file.insert(section.name, streams);
    }
    file.insert(QStringLiteral("_FileName"), info.filename);
    return file;
}

void exportWithQJsonDocument()
{
    QJsonArray files;
    for (const ExportEntry &entry : entries())
        files.append(jsonObject(*entry.data));
    QFile file(benchFile());
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(files).toJson());
}

/// A document of all records against writing its finished bytes, turn and turn about.
void exportAgainstPlainWrite(benchmark::State &state, const char *format)
{
    const QString key = QLatin1String(format);
    exportToFile(key);
    QFile document(benchFile());
    if (!document.open(QIODevice::ReadOnly))
        return state.SkipWithError("no document");
    const QByteArray bytes = document.readAll();
    double ours = 0;
    double plain = 0;
    for ([[maybe_unused]] auto _ : state) {
        plain += secondsOf([&] {
            QFile file(benchFile());
            if (file.open(QIODevice::WriteOnly))
                file.write(bytes);
        });
        const double round = secondsOf([&] { exportToFile(key); });
        ours += round;
        state.SetIterationTime(round);
    }
    const double megabytes = static_cast<double>(bytes.size()) / kMegabyte;
    state.counters["MB"] = megabytes;
    state.counters["MB_a_second"] = megabytes * static_cast<double>(state.iterations()) / ours;
    state.counters["plain_MB_a_second"] = megabytes * static_cast<double>(state.iterations()) / plain;
    state.counters["ratio"] = ours / plain;
}
BENCHMARK_CAPTURE(exportAgainstPlainWrite, txt, "txt")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(exportAgainstPlainWrite, html, "html")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(exportAgainstPlainWrite, csv, "csv")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(exportAgainstPlainWrite, xml, "xml")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(exportAgainstPlainWrite, json, "json")->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(exportAgainstPlainWrite, plist, "plist")->UseManualTime()->Unit(benchmark::kMillisecond);

/// Our JSON against Qt's, from the same records to the same kind of file.
void jsonAgainstQJsonDocument(benchmark::State &state)
{
    double ours = 0;
    double theirs = 0;
    for ([[maybe_unused]] auto _ : state) {
        theirs += secondsOf(exportWithQJsonDocument);
        const double round = secondsOf([] { exportToFile(QStringLiteral("json")); });
        ours += round;
        state.SetIterationTime(round);
    }
    state.counters["times_faster"] = theirs / ours;
}
BENCHMARK(jsonAgainstQJsonDocument)->UseManualTime()->Unit(benchmark::kMillisecond);

/// Counts what reaches it, and the most memory in use meanwhile.
class Watch final : public QIODevice {
public:
    Watch() { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }
    std::size_t most() const { return _most; }

private:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *, qint64 length) override
    {
        _most = std::max(_most, mallinfo2().uordblks + mallinfo2().hblkhd);
        return length;
    }

    std::size_t _most = 0;
};

/// Memory that a document of all records takes while it is written.
void memoryOfExport(benchmark::State &state, const char *format)
{
    static_cast<void>(entries());
    const auto inUse = mallinfo2();
    for ([[maybe_unused]] auto _ : state) {
        Watch device;
        writeDocument(QLatin1String(format), device);
        state.counters["KiB"] = static_cast<double>(device.most() - inUse.uordblks - inUse.hblkhd) / 1024;
    }
}
BENCHMARK_CAPTURE(memoryOfExport, csv, "csv")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(memoryOfExport, json, "json")->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(memoryOfExport, plist, "plist")->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace
