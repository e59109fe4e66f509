// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "BenchFiles.h"
#include "filter/FilelistFilter.h"
#include "filter/IndexQuery.h"
#include "filter/RecordIndex.h"
#include "filter/RuleText.h"
#include "readers/RecordBuilder.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <ctime>
#include <memory>
#include <random>
#include <utility>
#include <vector>

namespace {

using namespace quorvin;
using bench::mediaFiles;

constexpr std::size_t kRecords = 100'000;
constexpr std::size_t kParameters = 150;
constexpr std::size_t kWalked = 2'000; ///< records that are kept for the walk, which is as long for each
constexpr int kOneOf = 10; ///< values that are like no other

/// Processor time of this thread, so that what else the machine does counts for nothing.
double processorSecondsOf(const auto &work)
{
    const auto now = [] {
        timespec time{};
        ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

struct Seed {
    QString group;
    TermPtr term;
    QByteArray value;
};

/// The parameters of real files, one behind the other.
std::vector<Seed> seeds()
{
    std::vector<Seed> all;
    for (const QString &path : mediaFiles()) {
        const auto record = RecordBuilder({}).dataAboutFile(path);
        if (!record)
            continue;
        const ParameterGroups &groups = (*record)->groups();
        for (const auto &group : groups.groups()) {
            for (const auto &stream : group.streams) {
                for (const auto &parameter : groups.parameters(stream)) {
                    if (parameter.length < 100 && !parameter.flags.testFlag(ParameterFlag::SkipInExtended))
                        all.push_back({group.key, parameter.term, groups.utf8Value(parameter).toByteArray()});
                }
            }
        }
    }
    return all;
}

/// A value like it that no other record has: its last digits are others, or some follow it.
QByteArray madeUnique(QByteArray value, int number)
{
    const QByteArray digits = QByteArray::number(number, 36);
    if (value.size() > digits.size())
        value.chop(digits.size());
    return value + digits;
}

/// Records of so many parameters each, that begin anywhere among those of real files.
class RecordMaker {
public:
    RecordMaker() : _seeds(seeds()) { }

    QuorvinDataPtr next()
    {
        RecordContents record;
        record.isVideo = true;
        std::size_t place = _random() % _seeds.size();
        QString group;
        for (std::size_t i = 0; i < kParameters; ++i, place = (place + 1) % _seeds.size()) {
            const Seed &seed = _seeds[place];
            if (std::exchange(group, seed.group) != seed.group || i == 0) {
                record.groups.beginGroup(seed.group);
                record.groups.beginStream(0);
            }
            const bool isUnique = _random() % kOneOf == 0;
            record.groups.addUtf8(seed.term, isUnique ? madeUnique(seed.value, ++_unique) : seed.value);
        }
        record.groups.squeeze();
        return std::make_shared<const QuorvinData>(std::move(record));
    }

private:
    std::vector<Seed> _seeds;
    std::mt19937 _random{1};
    int _unique = 0;
};

/// The index of all, and the first of the records themselves.
struct ManyRecords {
    RecordIndex index;
    std::vector<FilelistItemPtr> walked;
    double secondsOfPut = 0;

    ManyRecords()
    {
        RecordMaker maker;
        for (std::size_t i = 0; i < kRecords; ++i) {
            const QString name = QStringLiteral("Holiday/IMG_%1.jpg").arg(i);
            const auto file = FilelistItem::itemWithFilename(u'/' + name, name);
            const auto record = maker.next();
            secondsOfPut += processorSecondsOf([&] { index.put(file, record); });
            if (i < kWalked)
                file->setResult(record);
            file->setIsDone(true);
            walked.push_back(file);
        }
    }
};

ManyRecords &manyRecords()
{
    static ManyRecords records;
    return records;
}

std::size_t count(IndexQuery &query, const RecordIndex &index)
{
    std::size_t found = 0;
    for (const auto &entry : index.entries())
        found += query.matches(index, entry) ? 1 : 0;
    return found;
}

/// How long the walk takes over all records, from some of them.
double walkSeconds(const QString &text, const Rule &rule)
{
    const auto &files = manyRecords().walked;
    const FilelistFilterFunction function({.globalText = text, .rule = rule});
    std::size_t found = 0;
    const double seconds = processorSecondsOf([&] {
        for (std::size_t i = 0; i < kWalked; ++i)
            found += function.passes(*files[i]) ? 1 : 0;
    });
    benchmark::DoNotOptimize(found);
    return seconds * kRecords / kWalked;
}

void search(benchmark::State &state, const char *text, const char *ruleText)
{
    const RecordIndex &index = manyRecords().index;
    const Rule rule = parseRule(QString::fromUtf8(ruleText)).value();
    std::size_t found = 0;
    for ([[maybe_unused]] auto _ : state) {
        IndexQuery query(QString::fromUtf8(text), rule);
        query.mark(index, nullptr, {});
        found = count(query, index);
    }
    state.counters["found"] = static_cast<double>(found);
    state.counters["walk_ms"] = walkSeconds(QString::fromUtf8(text), rule) * 1e3;
}

/// A letter more: only what the shorter text marked, in the records that it found.
void nextLetter(benchmark::State &state)
{
    const RecordIndex &index = manyRecords().index;
    IndexQuery wider(QStringLiteral("can"), {});
    wider.mark(index, nullptr, {});
    std::vector<const RecordIndex::Entry *> candidates;
    for (const auto &entry : index.entries()) {
        if (wider.matches(index, entry))
            candidates.push_back(&entry);
    }
    std::size_t found = 0;
    for ([[maybe_unused]] auto _ : state) {
        IndexQuery query(QStringLiteral("cano"), {});
        query.mark(index, &wider, {});
        found = 0;
        for (const auto *entry : candidates)
            found += query.matches(index, *entry) ? 1 : 0;
    }
    state.counters["found"] = static_cast<double>(found);
}

void filename(benchmark::State &state)
{
    const auto &files = manyRecords().walked;
    for ([[maybe_unused]] auto _ : state) {
        const FilelistFilterFunction function({.filenameText = QStringLiteral("img_99")});
        std::size_t found = 0;
        for (const FilelistItemPtr &file : files)
            found += function.passes(*file) ? 1 : 0;
        benchmark::DoNotOptimize(found);
    }
}

void feeding(benchmark::State &state)
{
    const ManyRecords &records = manyRecords();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(records.index.bytes());
    state.counters["put_us"] = records.secondsOfPut * 1e6 / kRecords;
    state.counters["bytes_a_record"] = static_cast<double>(records.index.bytes()) / kRecords;
    state.counters["values"] = static_cast<double>(records.index.valueTable().size());
}

BENCHMARK(feeding)->Name("filter/index");
BENCHMARK_CAPTURE(search, three, "can", "")
    ->Name("filter/search three letters")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, one, "a", "")->Name("filter/search one letter")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, rare, "zzqx", "")->Name("filter/search nothing")->Unit(benchmark::kMillisecond);
BENCHMARK(nextLetter)->Name("filter/search next letter")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, rule, "",
                  "[Video/Width] >= 100 AND parameterValue CONTAINS 'main' OR [Audio/Bit rate] > 64 kb/s")
    ->Name("filter/rule of three conditions")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(filename)->Name("filter/file name")->Unit(benchmark::kMillisecond);

} // namespace
