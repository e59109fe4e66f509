// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "SBJson5/Json5ParserHandler.h"
#include "SBJson5/SBJson5StreamParser.h"
#include "process/oExifToolStayOpenProcess.h"

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryFile>

#include <benchmark/benchmark.h>
#ifdef QUORVIN_SIMDJSON
#include <simdjson.h>
#endif

#include <atomic>
#include <thread>

namespace {

using namespace quorvin;
using bench::mediaFiles;
using bench::secondsOf;

constexpr std::size_t kFilesOfRound = 600; ///< so many that a start of Perl is no great part of it

const std::vector<QString> &filesOfRound()
{
    static const std::vector<QString> files = [] {
        std::vector<QString> some;
        for (std::size_t i = 0; i < kFilesOfRound; ++i)
            some.push_back(mediaFiles()[i % mediaFiles().size()]);
        return some;
    }();
    return files;
}

/// Every file once, by so many residents, each of which takes the next one when it is free.
double secondsOfResidents(std::size_t count)
{
    std::atomic<std::size_t> next = 0;
    const auto work = [&next] {
        const auto process = oExifToolStayOpenProcess::init({});
        for (std::size_t i = next++; process && i < filesOfRound().size(); i = next++)
            benchmark::DoNotOptimize((*process)->outputWithArguments(
                {QFile::encodeName(filesOfRound()[i]), "-json", "-l", "-G:0:1:2:4", "-D", "-a"}));
    };
    return secondsOf([&] {
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < count; ++i)
            threads.emplace_back(work);
    });
}

/// The program's own loop over the same list, with the same arguments.
double secondsOfOneProcess()
{
    QTemporaryFile list;
    if (!list.open())
        return 0;
    for (const QString &file : filesOfRound())
        list.write(QFile::encodeName(file) + '\n');
    list.flush();
    QProcess exiftool;
    exiftool.setStandardErrorFile(QProcess::nullDevice());
    return secondsOf([&] {
        exiftool.start(QStringLiteral("exiftool"),
                       {QStringLiteral("-json"), QStringLiteral("-l"), QStringLiteral("-G:0:1:2:4"),
                        QStringLiteral("-D"), QStringLiteral("-a"), QStringLiteral("-@"), list.fileName()});
        exiftool.waitForFinished(-1);
    });
}

/// Files a second of residents against the program's own loop, turn and turn about.
void residentsAgainstOneProcess(benchmark::State &state)
{
    double one = 0;
    double two = 0;
    double loop = 0;
    for ([[maybe_unused]] auto _ : state) {
        loop += secondsOfOneProcess();
        one += secondsOfResidents(1);
        two += secondsOfResidents(2);
    }
    const auto files = static_cast<double>(filesOfRound().size() * state.iterations());
    state.counters["files_a_second"] = files / one;
    state.counters["one_against_the_loop"] = loop / one;
    state.counters["two_against_one"] = one / two;
}
BENCHMARK(residentsAgainstOneProcess)->Iterations(3)->Unit(benchmark::kMillisecond);

/// What exiftool tells of the files, as one list of some ten megabytes.
const QByteArray &json()
{
    static const QByteArray text = [] {
        constexpr qsizetype kLength = 10'000'000;
        QByteArray all("[");
        const auto process = oExifToolStayOpenProcess::init({});
        for (std::size_t i = 0; process && all.size() < kLength; ++i) {
            const auto output
                = (*process)->outputWithArguments({QFile::encodeName(mediaFiles()[i % mediaFiles().size()]),
                                                   "-json", "-l", "-G:0:1:2:4", "-a"});
            if (output)
                all += (all.size() > 1 ? "," : "") + output->trimmed().sliced(1).chopped(1);
        }
        return all + ']';
    }();
    return text;
}

template <typename Parse>
void parsing(benchmark::State &state, Parse parse)
{
    json(); // made when it is asked for first
    for ([[maybe_unused]] auto _ : state)
        parse();
    state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * json().size());
}

/// Hears everything and keeps nothing.
struct Silent final : SBJson5StreamParserDelegate {
    std::size_t heard = 0;

    void parserFoundObjectStart() override { ++heard; }
    void parserFoundObjectKey(QByteArrayView) override { ++heard; }
    void parserFoundObjectEnd() override { ++heard; }
    void parserFoundArrayStart() override { ++heard; }
    void parserFoundArrayEnd() override { ++heard; }
    void parserFoundBoolean(bool) override { ++heard; }
    void parserFoundNull() override { ++heard; }
    void parserFoundNumber(const SBJson5Number &) override { ++heard; }
    void parserFoundString(QByteArrayView) override { ++heard; }
    void parserFoundError(const SBJson5Error &) override { ++heard; }
};

void jsonByEvents(benchmark::State &state)
{
    parsing(state, [] {
        Silent listener;
        SBJson5StreamParser(listener).parse(json());
        benchmark::DoNotOptimize(listener.heard);
    });
}
BENCHMARK(jsonByEvents)->Unit(benchmark::kMillisecond);

void jsonAsValues(benchmark::State &state)
{
    parsing(state, [] {
        Json5ParserHandler handler;
        SBJson5StreamParser(handler).parse(json());
        benchmark::DoNotOptimize(handler.keysOrder().size());
    });
}
BENCHMARK(jsonAsValues)->Unit(benchmark::kMillisecond);

void jsonByQt(benchmark::State &state)
{
    parsing(state, [] { benchmark::DoNotOptimize(QJsonDocument::fromJson(json())); });
}
BENCHMARK(jsonByQt)->Unit(benchmark::kMillisecond);

#ifdef QUORVIN_SIMDJSON
void jsonBySimdjson(benchmark::State &state)
{
    const simdjson::padded_string text(json().constData(), static_cast<std::size_t>(json().size()));
    simdjson::dom::parser parser;
    parsing(state, [&] { benchmark::DoNotOptimize(parser.parse(text).error()); });
}
BENCHMARK(jsonBySimdjson)->Unit(benchmark::kMillisecond);
#endif

} // namespace
