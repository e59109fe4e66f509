// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectDraft.h"

#include "projects/FileTimes.h"
#include "projects/ProjectPaths.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <climits>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kSha1Digits = 40;

/// Elements of lists that `begin` makes room for.
Expected<void> countEntry(ProjectDraft &draft)
{
    if (++draft.entries > kMostProjectEntries)
        return failure(u"there are too many entries"_s);
    return {};
}

Expected<void> addFile(ProjectDraft &draft)
{
    if (draft.project.files.size() >= kMostProjectFiles)
        return failure(u"there are too many files"_s);
    draft.project.files.emplace_back();
    return {};
}

Expected<void> checkFile(ProjectDraft &draft)
{
    if (draft.project.files.back().path.isEmpty())
        return failure(u"a file has no \"url\""_s);
    return {};
}

Expected<void> addFolder(ProjectDraft &draft)
{
    draft.project.folders.emplace_back();
    return countEntry(draft);
}

Expected<void> checkFolder(ProjectDraft &draft)
{
    if (draft.project.folders.back().path.isEmpty())
        return failure(u"a folder has no \"url\""_s);
    return {};
}

Expected<void> addOther(ProjectDraft &draft, const QByteArray &text)
{
    return countEntry(draft).and_then([&] { return nameFromEscaped(text); }).map([&](const QString &name) {
        draft.project.folders.back().others.append(name);
    });
}

Expected<void> addWatch(ProjectDraft &draft)
{
    draft.project.watched.emplace_back();
    return countEntry(draft);
}

Expected<void> beginRule(ProjectDraft &draft)
{
    draft.rule = {};
    return countEntry(draft);
}

Expected<void> endRule(ProjectDraft &draft)
{
    if (draft.rule.first.isEmpty() || draft.rule.second.isEmpty())
        return failure(u"a rule has no \"name\" or no \"rule\""_s);
    draft.project.rules.insert_or_assign(draft.rule.first, draft.rule.second);
    return {};
}

Expected<void> beginColumns(ProjectDraft &draft)
{
    draft.project.comparison.columns.emplace();
    return {};
}

Expected<void> addColumn(ProjectDraft &draft, const QByteArray &text)
{
    return countEntry(draft)
        .and_then([&] { return pathOfProjectUrl(text, draft.folder); })
        .map([&](const QString &path) { draft.project.comparison.columns->append(path); });
}

Expected<void> takeFormat(ProjectDraft &draft, const QByteArray &text)
{
    draft.hasFormat = text == kProjectFormat;
    return draft.hasFormat ? Expected<void>() : tl::unexpected(foreignProjectError());
}

Expected<void> takeVersion(ProjectDraft &draft, quint64 version)
{
    draft.hasVersion = true;
    if (version > kProjectVersion)
        return tl::unexpected(newerProjectError());
    return version > 0 ? Expected<void>() : failure(u"there is no such version"_s);
}

Expected<void> takeShown(ProjectDraft &draft, quint64 number)
{
    if (number == 0 || number > SHRT_MAX)
        return failure(u"it is out of range"_s);
    draft.project.files.back().shownComponents = static_cast<int>(number);
    return {};
}

Expected<void> takeSha1(ProjectDraft &draft, const QByteArray &text)
{
    const bool isHex
        = std::ranges::all_of(text, [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
    if (text.size() != kSha1Digits || !isHex)
        return failure(u"it is no digest"_s);
    draft.project.files.back().facts.sha1 = QString::fromLatin1(text);
    return {};
}

KeptFacts &factsOf(ProjectDraft &draft)
{
    return draft.project.files.back().facts;
}

template <auto Member>
Expected<void> takeTime(ProjectDraft &draft, const QByteArray &text)
{
    const auto time = fileTimeFromText(text);
    if (!time)
        return failure(u"it is no date"_s);
    factsOf(draft).*Member = *time;
    return {};
}

/// The address of the last element of one of the project's lists.
template <auto List>
Expected<void> takeUrl(ProjectDraft &draft, const QByteArray &text)
{
    return pathOfProjectUrl(text, draft.folder).map([&](const QString &path) {
        (draft.project.*List).back().path = path;
    });
}

template <auto Member>
Expected<void> takeWatchText(ProjectDraft &draft, const QByteArray &text)
{
    draft.project.watched.back().*Member = QString::fromUtf8(text);
    return {};
}

template <auto Member>
Expected<void> takeRuleText(ProjectDraft &draft, const QByteArray &text)
{
    draft.rule.*Member = QString::fromUtf8(text);
    return {};
}

template <auto Member>
Expected<void> takeFilterText(ProjectDraft &draft, const QByteArray &text)
{
    draft.project.filter.*Member = QString::fromUtf8(text);
    return {};
}

Expected<void> takeTab(ProjectDraft &draft, const QByteArray &text)
{
    draft.project.tab = QString::fromUtf8(text);
    return {};
}

Expected<void> takeRows(ProjectDraft &draft, const QByteArray &text)
{
    draft.project.comparison.rows = QString::fromUtf8(text);
    return {};
}

Expected<void> takeSize(ProjectDraft &draft, quint64 size)
{
    factsOf(draft).size = size;
    return {};
}

Expected<void> takeStream(ProjectDraft &draft, quint64 stream)
{
    draft.project.watched.back().stream = stream;
    return {};
}

Expected<void> takeHideUnknown(ProjectDraft &draft, bool truth)
{
    draft.project.filter.hideUnknown = truth;
    return {};
}

using enum ProjectValue;

constexpr std::array kMembers{
    ProjectMember{.place = "", .type = Object},
    ProjectMember{.place = "format", .type = Text, .takeText = takeFormat},
    ProjectMember{.place = "version", .type = Number, .takeNumber = takeVersion},

    ProjectMember{.place = "files", .type = List},
    ProjectMember{.place = "files[]", .type = Object, .begin = addFile, .end = checkFile},
    ProjectMember{.place = "files[].url", .type = Text, .takeText = takeUrl<&Project::files>},
    ProjectMember{.place = "files[].shown", .type = Number, .takeNumber = takeShown},
    ProjectMember{.place = "files[].size", .type = Number, .takeNumber = takeSize},
    ProjectMember{.place = "files[].modified", .type = Text, .takeText = takeTime<&KeptFacts::modified>},
    ProjectMember{.place = "files[].created", .type = Text, .takeText = takeTime<&KeptFacts::created>},
    ProjectMember{.place = "files[].sha1", .type = Text, .takeText = takeSha1},

    ProjectMember{.place = "folders", .type = List},
    ProjectMember{.place = "folders[]", .type = Object, .begin = addFolder, .end = checkFolder},
    ProjectMember{.place = "folders[].url", .type = Text, .takeText = takeUrl<&Project::folders>},
    ProjectMember{.place = "folders[].others", .type = List},
    ProjectMember{.place = "folders[].others[]", .type = Text, .takeText = addOther},

    ProjectMember{.place = "tab", .type = Text, .takeText = takeTab},
    ProjectMember{.place = "filter", .type = Object},
    ProjectMember{.place = "filter.rule", .type = Text, .takeText = takeFilterText<&ProjectFilter::rule>},
    ProjectMember{.place = "filter.name", .type = Text, .takeText = takeFilterText<&ProjectFilter::name>},
    ProjectMember{
        .place = "filter.content", .type = Text, .takeText = takeFilterText<&ProjectFilter::content>},
    ProjectMember{.place = "filter.hideUnknown", .type = Truth, .takeTruth = takeHideUnknown},

    ProjectMember{.place = "watched", .type = List},
    ProjectMember{.place = "watched[]", .type = Object, .begin = addWatch},
    ProjectMember{.place = "watched[].group", .type = Text, .takeText = takeWatchText<&ProjectWatch::group>},
    ProjectMember{.place = "watched[].stream", .type = Number, .takeNumber = takeStream},
    ProjectMember{.place = "watched[].key", .type = Text, .takeText = takeWatchText<&ProjectWatch::key>},
    ProjectMember{.place = "watched[].label", .type = Text, .takeText = takeWatchText<&ProjectWatch::label>},

    ProjectMember{.place = "rules", .type = List},
    ProjectMember{.place = "rules[]", .type = Object, .begin = beginRule, .end = endRule},
    ProjectMember{
        .place = "rules[].name", .type = Text, .takeText = takeRuleText<&std::pair<QString, QString>::first>},
    ProjectMember{.place = "rules[].rule",
                  .type = Text,
                  .takeText = takeRuleText<&std::pair<QString, QString>::second>},

    ProjectMember{.place = "comparison", .type = Object},
    ProjectMember{.place = "comparison.columns", .type = List, .begin = beginColumns},
    ProjectMember{.place = "comparison.columns[]", .type = Text, .takeText = addColumn},
    ProjectMember{.place = "comparison.rows", .type = Text, .takeText = takeRows},
};

} // namespace

const ProjectMember *projectMemberAt(QByteArrayView place)
{
    static const QHash<QByteArrayView, const ProjectMember *> members = [] {
        QHash<QByteArrayView, const ProjectMember *> made;
        for (const ProjectMember &member : kMembers)
            made.insert(member.place, &member);
        return made;
    }();
    return members.value(place);
}

QString nameOfProjectValue(ProjectValue type)
{
    switch (type) {
    case Object:
        return u"an object"_s;
    case List:
        return u"a list"_s;
    case Text:
        return u"a text"_s;
    case Number:
        return u"a whole number"_s;
    case Truth:
        break;
    }
    return u"true or false"_s;
}

Error newerProjectError()
{
    return {kErrorDomain, 0, u"the project was written by a newer Quorvin"_s};
}

Error foreignProjectError()
{
    return {kErrorDomain, 0, u"this is no project of Quorvin"_s};
}

} // namespace quorvin
