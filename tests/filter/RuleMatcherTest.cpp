// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/FilelistFilter.h"
#include "filter/RuleText.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QuorvinDataPtr movie()
{
    RecordContents record;
    record.isVideo = true;
    record.isAudio = true;
    ParameterGroups &groups = record.groups;
    const auto add = [&](const char *key, const char *label, const char *value, quint16 subgroup = 0,
                         ParameterFlags flags = {}) {
        groups.add(internTerm(QString::fromUtf8(key), QString::fromUtf8(label)), QString::fromUtf8(value),
                   flags, subgroup);
    };
    groups.beginGroup(u"Video"_s);
    groups.beginStream(0);
    add("Width", "Breadth", "1 920 pixels");
    add("BitRate", "Bit rate", "5 034 kb/s");
    add("xyz", "Recorded at", "+40.68-074.04/");
    groups.beginGroup(u"Audio"_s, true);
    groups.beginStream(1);
    add("Language", "Language", "English");
    groups.beginStream(2);
    add("Language", "Language", "Fran\u00e7ais");
    groups.beginGroup(u"Menu/Chapters"_s);
    groups.beginStream(0);
    const quint16 subgroup = groups.addSubgroup(u"Canon [x]"_s);
    add("iso", "ISO", "", subgroup);
    add("hidden", "Hidden", "secret", 0, ParameterFlag::SkipInExtended);
    return std::make_shared<const QuorvinData>(std::move(record));
}

bool matches(const char *text, const QuorvinData &record)
{
    const auto rule = parseRule(QString::fromUtf8(text));
    EXPECT_TRUE(rule) << text;
    return rule && RuleMatcher(*rule).matches(record);
}

FilelistItemPtr item(const QString &path, const Expected<QuorvinDataPtr> &result)
{
    auto file = FilelistItem::itemWithFilename(u"/home/"_s + path, path);
    file->setResult(result);
    file->setIsDone(true);
    return file;
}

} // namespace

TEST(RuleMatcher, FindsParametersByHeadingAndName)
{
    const QuorvinDataPtr record = movie();
    for (const char *rule : {
             "",
             "fileType = 'video' AND fileType != 'Audio'",
             "[Video/Breadth] >= 1920",
             "[video/WIDTH] = 1920 AND [Video/Width] != '1920'",
             "[Video/Bit rate] > 5 Mb/s",
             "[Video/Bit rate] IN 5034000..'6 Mb/s'",
             "[Audio/Language] = 'fran\u00c7ais' AND [Audio/Language] = 'english'",
             "[Audio/Language] != 'English'",
             "[Audio/Language] MATCHES '^eng.*h$'",
             "[Audio/Language] CONTAINS 'GLI'",
             "[Menu/Chapters/ISO] = '' AND [Canon [x]]/iso] = ''",
             "[Video/Height] IS MISSING",
             "[Menu/Chapters/Hidden] IS MISSING",
             "NOT [Video/Width] IS MISSING",
             "parameterName = 'bit rate' AND parameterName != 'bit rate' AND parameterName CONTAINS 'rat'",
             "parameterValue CONTAINS 'kb/S' AND NOT parameterValue = 'secret'",
             "failed OR fileType = 'Video'",
             "PRIVATE AND fileType = 'Video'",
         })
        EXPECT_TRUE(matches(rule, *record)) << rule;
    for (const char *rule : {
             "failed",
             "fileType = 'Audio'",
             "[Video/Width] > 1920",
             "[Video/Width] > 1 Mb/s",
             "[Audio/Language] = 'Fran'",
             "[Audio #1/Language] = 'English'",
             "[Audio/Language] > 5",
             "parameterName CONTAINS 'hidden'",
             "[Video/Height] != 'x'",
             "NOT (failed OR [Video/Width] = 1920)",
             "NOT private",
         })
        EXPECT_FALSE(matches(rule, *record)) << rule;
}

TEST(RuleMatcher, FileThatCouldNotBeReadSatisfiesNothingElse)
{
    const auto broken = item(u"b"_s, failure(u"broken"_s));
    const auto unread = FilelistItem::itemWithFilename(u"/c"_s, u"c"_s);
    const auto passes = [](const char *text, const FilelistItemPtr &file) {
        return RuleMatcher(parseRule(QString::fromUtf8(text)).value()).matches(*file);
    };
    EXPECT_TRUE(passes("failed", broken));
    EXPECT_FALSE(passes("[A/B] IS MISSING", broken));
    EXPECT_FALSE(passes("fileType != 'Video'", broken));
    EXPECT_TRUE(passes("NOT fileType = 'Video'", broken));
    EXPECT_FALSE(passes("NOT failed", broken));
    EXPECT_TRUE(passes("", unread));
    EXPECT_FALSE(passes("failed", unread));
    EXPECT_FALSE(passes("NOT failed", unread));
}

TEST(FilelistFilter, EachPartHasToHold)
{
    const auto film = item(u"Films/One.MOV"_s, movie());
    const auto unknown = item(u"two.txt"_s, std::make_shared<const QuorvinData>(RecordContents{}));
    const auto broken = item(u"three.mov"_s, failure(u"broken"_s));
    const auto unread = FilelistItem::itemWithFilename(u"/home/four.mov"_s, u"four.mov"_s);
    const auto shown = [&](const FilelistFilter &filter) {
        const FilelistFilterFunction function(filter);
        QStringList names;
        for (const auto &file : {film, unknown, broken, unread}) {
            if (function.passes(*file))
                names.append(file->prefixedPath().section(u'/', -1).section(u'.', 0, 0));
        }
        return names.join(u' ');
    };
    EXPECT_EQ(shown({}), u"One two three four"_s);
    EXPECT_EQ(shown({.hideUnknownFiles = true}), u"One three"_s);
    EXPECT_EQ(shown({.filenameText = u"mov"_s}), u"One three four"_s);
    EXPECT_EQ(shown({.filenameText = u"home"_s}), QString());
    EXPECT_EQ(shown({.globalText = u"LANGUAGE"_s}), u"One"_s);
    EXPECT_EQ(shown({.rule = Rule::failed()}), u"three"_s);
    EXPECT_EQ(shown({.filenameText = u"mov"_s, .globalText = u"none"_s}), QString());
    EXPECT_EQ(shown({.hideUnknownFiles = true, .filenameText = u"three"_s, .rule = Rule::failed()}),
              u"three"_s);
}

TEST(FilelistFilter, FindsTextsInNamesOfEveryKind)
{
    const QString longName = QString(255, u'a');
    for (const QString &name : {u"Films/One [2].MOV"_s, u"Stra\u00dfe \u0130.mov"_s, u"\u00c9t\u00e9"_s,
                                QString(), longName + u'Z', longName + u"yZ"_s, longName + u"y\u00c9"_s}) {
        const auto file = FilelistItem::itemWithFilename(u'/' + name, name);
        for (const QString &text : {u"one [2].m"_s, u"[2].movx"_s, u"STRASSE"_s, u"\u0130"_s, u"e\u0301T"_s,
                                    u"aZ"_s, u"AYz"_s, u"y\u00e9"_s, u"~"_s})
            EXPECT_EQ(FilelistFilterFunction({.filenameText = text}).passes(*file),
                      foldedUtf8(name).contains(foldedUtf8(text)))
                << name.toStdString() << " / " << text.toStdString();
    }
}

} // namespace quorvin
