// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FileSum.h"

#include "platform/NativePath.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

void add(FileSum::Shared &shared, const StyledText &text)
{
    if (text.plain.isEmpty())
        return;
    if (++shared.count == 1)
        shared.text = text;
    else if (shared.text && *shared.text != text)
        shared.text.reset();
}

/// The part of the folder that the other one lies in too.
QString commonFolder(QString folder, const QString &other)
{
    const auto holds = [&other](const QString &outer) {
        return outer == other || other.startsWith(outer.endsWith(u'/') ? outer : outer + u'/');
    };
    while (folder.size() > 1 && !holds(folder))
        folder.truncate(std::max<qsizetype>(folder.lastIndexOf(u'/'), 1));
    return folder;
}

/// Counts kinds and gathers lines while records come.
class Gathering {
public:
    void addKind(const QString &name)
    {
        const auto [known, isNew] = entryOf(_kinds, name, _sum.kinds.size());
        if (isNew)
            _sum.kinds.push_back({name, 0});
        ++_sum.kinds[known].count;
    }
    void addLine(const GeneralLine &line)
    {
        // One and the same stream is "Audio" in a file that has no other, and else "Audio #1".
        const QString identity = line.isMediaStream()
            ? line.key + QChar::LineFeed + QString::number(line.streamIndex)
            : QChar::LineFeed + line.name;
        const auto [known, isNew] = entryOf(_places, identity, _lines.size());
        if (isNew)
            _lines.push_back({{line.name, {}}, rankOf(line), line.streamIndex});
        GatheredLine &gathered = _lines[known];
        if (gathered.line.name.size() < line.name.size())
            gathered.line.name = line.name;
        add(gathered.line.value, line.value);
    }
    FileSum take()
    {
        std::ranges::stable_sort(_sum.kinds, std::greater(), &FileSum::Kind::count);
        std::vector<GatheredLine *> sorted;
        for (GatheredLine &line : _lines)
            sorted.push_back(&line);
        std::ranges::stable_sort(
            sorted, {}, [](const GatheredLine *line) { return std::pair(line->rank, line->streamIndex); });
        for (GatheredLine *line : sorted)
            _sum.lines.push_back(std::move(line->line));
        return std::move(_sum);
    }
    FileSum &sum() { return _sum; }

private:
    struct GatheredLine {
        FileSum::Line line;
        qsizetype rank; ///< of its kind among the kinds, as they came
        quint64 streamIndex;
    };
    using Places = QHash<QString, std::size_t>;

    static std::pair<std::size_t, bool> entryOf(Places &places, const QString &name, std::size_t next)
    {
        const auto known = places.constFind(name);
        if (known != places.cend())
            return {*known, false};
        places.insert(name, next);
        return {next, true};
    }
    qsizetype rankOf(const GeneralLine &line)
    {
        return static_cast<qsizetype>(entryOf(_ranks,
                                              line.isMediaStream() ? line.key : QChar::LineFeed + line.name,
                                              static_cast<std::size_t>(_ranks.size()))
                                          .first);
    }

    FileSum _sum;
    std::vector<GatheredLine> _lines;
    Places _kinds;
    Places _places;
    Places _ranks;
};

void addRecord(Gathering &gathering, const QuorvinData &record)
{
    const GeneralFacts &general = record.generalInfo();
    FileSum &sum = gathering.sum();
    sum.bytes += general.filesizeinbytes.toLongLong();
    sum.duration += record.duration();
    if (general.fileKind)
        gathering.addKind(*general.fileKind);
    add(sum.mimeName, {general.fileUTI.value_or(QString())});
    add(sum.format, {general.format});
    add(sum.imageSize, {general.imageSizeMP.value_or(QString())});
    for (const GeneralLine &line : general.lines)
        gathering.addLine(line);
}

} // namespace

FileSum sumOf(const std::vector<FilelistItemPtr> &files, const std::stop_token &stop)
{
    Gathering gathering;
    FileSum &sum = gathering.sum();
    for (const FilelistItemPtr &file : files) {
        if (stop.stop_requested())
            break;
        const QString folder = withoutLastPathComponent(file->filename());
        sum.folder = sum.files++ == 0 ? folder : commonFolder(sum.folder, folder);
        if (const QuorvinDataPtr record = file->quorvinData())
            addRecord(gathering, *record);
        else
            ++(file->isFailed() ? sum.failed : sum.unread);
    }
    return gathering.take();
}

} // namespace quorvin
