// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ManyRecords.h"

#include "BenchFiles.h"
#include "readers/RecordBuilder.h"

#include <memory>
#include <random>
#include <utility>

namespace quorvin::bench {

namespace {

constexpr std::size_t kParameters = 150;
constexpr int kOneOf = 10; ///< values that are like no other

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

} // namespace

ManyRecords::ManyRecords()
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
        files.push_back(file);
    }
}

ManyRecords &manyRecords()
{
    static ManyRecords records;
    return records;
}

} // namespace quorvin::bench
