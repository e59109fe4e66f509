// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FileSum.h"

#include <gtest/gtest.h>

#include <utility>

namespace quorvin {

using namespace Qt::StringLiterals;

namespace {

GeneralLine line(const QString &key, const QString &name, const QString &value, quint64 streamIndex = 0)
{
    return {key, name, {value}, streamIndex};
}

FilelistItemPtr file(const QString &path, std::vector<GeneralLine> lines, const QString &format = u"F"_s,
                     const QString &kind = u"a kind"_s)
{
    RecordContents contents;
    contents.filename = path;
    contents.duration = 1500;
    contents.general.filesizeinbytes = u"4000000000"_s;
    contents.general.format = format;
    contents.general.fileKind = kind;
    contents.general.lines = std::move(lines);
    const FilelistItemPtr item = FilelistItem::itemWithFilename(path, path);
    item->setResult(QuorvinDataPtr(std::make_shared<const QuorvinData>(std::move(contents))));
    return item;
}

FilelistItemPtr unreadFile(const QString &path)
{
    return FilelistItem::itemWithFilename(path, path);
}

FilelistItemPtr failedFile(const QString &path)
{
    const FilelistItemPtr item = unreadFile(path);
    item->setResult(failure(u"broken"_s));
    return item;
}

/// "name=value*count" of each line, "differs" for an absent value.
QString linesOf(const FileSum &sum)
{
    QStringList texts;
    for (const FileSum::Line &line : sum.lines)
        texts.append(
            u"%1=%2*%3"_s
                .arg(line.name,
                     line.value.differs() ? u"differs"_s : line.value.text.value_or(StyledText()).plain)
                .arg(line.value.count));
    return texts.join(u' ');
}

} // namespace

TEST(FileSum, AddsUpAndCountsWhatIsMissing)
{
    const FileSum sum
        = sumOf({file(u"/a/1"_s, {}), failedFile(u"/a/2"_s), file(u"/a/3"_s, {}, u"G"_s, u"other"_s),
                 unreadFile(u"/a/4"_s), file(u"/a/5"_s, {}, u"F"_s, u"other"_s)});
    EXPECT_EQ(sum.files, 5);
    EXPECT_EQ(sum.records(), 3);
    EXPECT_EQ(sum.failed, 1);
    EXPECT_EQ(sum.unread, 1);
    EXPECT_EQ(sum.bytes, 12'000'000'000);
    EXPECT_EQ(sum.duration, 4500);
    EXPECT_EQ(sum.kinds, (std::vector<FileSum::Kind>{{u"other"_s, 2}, {u"a kind"_s, 1}}));
    EXPECT_TRUE(sum.format.differs()) << "and stays so when the first text comes again";
    EXPECT_EQ(sum.format.count, 3);
    EXPECT_EQ(sum.imageSize, FileSum::Shared()) << "no file has one";
}

TEST(FileSum, TellsWhatLinesHaveInCommon)
{
    const GeneralLine video = line(u"Video"_s, u"Video"_s, u"AVC"_s);
    const GeneralLine iso = line(u""_s, u"ISO"_s, u"100"_s);
    EXPECT_EQ(linesOf(sumOf({file(u"/1"_s, {video, line(u"Audio"_s, u"Audio"_s, u"AAC"_s)}),
                             file(u"/2"_s,
                                  {video, line(u"Audio"_s, u"Audio #1"_s, u"AC-3"_s, 0),
                                   line(u"Audio"_s, u"Audio #2"_s, u"AAC"_s, 1),
                                   line(u"Text"_s, u"Subtitles"_s, u"UTF-8"_s)})})),
              u"Video=AVC*2 Audio #1=differs*2 Audio #2=AAC*1 Subtitles=UTF-8*1"_s);
    EXPECT_EQ(linesOf(sumOf({file(u"/1"_s, {line(u"Text"_s, u"Subtitles"_s, u"UTF-8"_s)}),
                             file(u"/2"_s, {video, line(u"Text"_s, u"Subtitles #2"_s, u"UTF-8"_s, 1)}),
                             file(u"/3"_s, {iso}), file(u"/4"_s, {iso, line(u""_s, u"Lens"_s, u""_s)})})),
              u"Subtitles=UTF-8*1 Subtitles #2=UTF-8*1 Video=AVC*1 ISO=100*2 Lens=*0"_s)
        << "streams of a kind stand together";
}

TEST(FileSum, FindsTheInnermostFolder)
{
    const auto folderOf = [](std::initializer_list<QString> paths) {
        std::vector<FilelistItemPtr> files;
        for (const QString &path : paths)
            files.push_back(unreadFile(path));
        return sumOf(files).folder;
    };
    EXPECT_EQ(folderOf({u"/a/b/1"_s, u"/a/b/2"_s}), u"/a/b"_s);
    EXPECT_EQ(folderOf({u"/a/b/c/1"_s, u"/a/b/2"_s}), u"/a/b"_s);
    EXPECT_EQ(folderOf({u"/a/b/1"_s, u"/a/bc/2"_s}), u"/a"_s) << "not by letters";
    EXPECT_EQ(folderOf({u"/a/b/1"_s, u"/c/2"_s, u"/a/b/3"_s}), u"/"_s);
    EXPECT_EQ(folderOf({}), QString());
}

} // namespace quorvin
