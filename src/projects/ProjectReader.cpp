// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectReader.h"

#include "SBJson5/SBJson5StreamParser.h"
#include "SBJson5/SBJson5StreamParserDelegate.h"
#include "platform/RegularFile.h"
#include "projects/ProjectDraft.h"
#include "projects/ProjectPaths.h"

#include <QFile>

#include <algorithm>
#include <optional>
#include <variant>
#include <vector>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr quint64 kMostProjectDepth = 32;
/// A longer name is none that is known.
constexpr qsizetype kMostNameLength = 32;

/// Follows the document from place to place and hands what stands at a known one to the draft. Nothing is
/// kept of the rest.
class ProjectListener final : public SBJson5StreamParserDelegate {
public:
    explicit ProjectListener(const QString &folder) { _draft.folder = folder; }

    ProjectDraft &draft() { return _draft; }
    /// Nothing more is taken.
    bool isOver() const { return _refusal || !_damage.isEmpty(); }
    /// The document is of a kind that is not read; absent while it is.
    const std::optional<Error> &refusal() const { return _refusal; }
    /// What is wrong with the value at hand; "" while nothing is.
    const QString &damage() const { return _damage; }

    void parserFoundObjectStart() override { enter(ProjectValue::Object, false); }
    void parserFoundObjectEnd() override { leave(); }
    void parserFoundArrayStart() override { enter(ProjectValue::List, true); }
    void parserFoundArrayEnd() override { leave(); }

    void parserFoundObjectKey(QByteArrayView key) override
    {
        _place.truncate(_open.back().length);
        // A name with our own marks in it would lead to another place.
        const bool isPlain = key.size() <= kMostNameLength && std::ranges::all_of(key, isLetterOrDigit);
        if (!_place.isEmpty())
            _place.append('.');
        _place.append(isPlain ? key : QByteArrayView("?"));
    }

    void parserFoundBoolean(bool value) override
    {
        if (const ProjectMember *member = known(ProjectValue::Truth))
            take(member->takeTruth(_draft, value));
    }
    void parserFoundNull() override
    {
        if (const ProjectMember *member = here())
            fail(wrongType(*member));
    }
    void parserFoundNumber(const SBJson5Number &number) override
    {
        const ProjectMember *member = known(ProjectValue::Number);
        if (!member)
            return;
        if (const auto *value = std::get_if<quint64>(&number.value))
            take(member->takeNumber(_draft, *value));
        else
            fail(wrongType(*member));
    }
    void parserFoundString(QByteArrayView text) override
    {
        if (const ProjectMember *member = known(ProjectValue::Text))
            take(member->takeText(_draft, text.toByteArray()));
    }
    void parserFoundError(const SBJson5Error &error) override { fail(error.description); }

private:
    struct Level {
        qsizetype length = 0; ///< of the place of the container
        qsizetype above = 0; ///< of the place that was current before it
        const ProjectMember *member = nullptr; ///< null for one that is not known
    };

    static bool isLetterOrDigit(char sign)
    {
        return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') || (sign >= '0' && sign <= '9');
    }

    const ProjectMember *here() const { return isOver() ? nullptr : projectMemberAt(_place); }

    /// The member that stands here and takes such values; null when none does.
    const ProjectMember *known(ProjectValue type)
    {
        const ProjectMember *member = here();
        if (!member || member->type == type)
            return member;
        fail(wrongType(*member));
        return nullptr;
    }

    void enter(ProjectValue type, bool isList)
    {
        const ProjectMember *member = known(type);
        if (member && member->begin)
            take(member->begin(_draft));
        const qsizetype above = _place.size();
        if (isList)
            _place.append("[]");
        _open.push_back({_place.size(), above, member});
    }

    void leave()
    {
        const Level level = _open.back();
        _open.pop_back();
        _place.truncate(level.above);
        if (level.member && level.member->end && !isOver())
            take(level.member->end(_draft));
    }

    QString wrongType(const ProjectMember &member) const
    {
        return u"\"%1\" is not %2"_s.arg(QString::fromLatin1(_place), nameOfProjectValue(member.type));
    }

    void take(const Expected<void> &taken)
    {
        if (taken)
            return;
        const Error &error = taken.error();
        if (error == newerProjectError() || error == foreignProjectError())
            _refusal = error;
        else
            fail(u"\"%1\": %2"_s.arg(QString::fromLatin1(_place), error.description));
    }

    void fail(const QString &reason)
    {
        if (!isOver())
            _damage = reason;
    }

    ProjectDraft _draft;
    QByteArray _place; ///< of the value that comes next, or of the container that is open
    std::vector<Level> _open;
    std::optional<Error> _refusal;
    QString _damage;
};

tl::unexpected<Error> damage(int line, const QString &reason)
{
    return failure(u"the project is damaged: line %1: %2"_s.arg(line).arg(reason));
}

} // namespace

Expected<Project> projectFromJson(const QByteArray &json, const QString &folder)
{
    ProjectListener listener(folder);
    SBJson5StreamParser parser(listener, kMostProjectDepth);
    auto status = SBJson5ParserStatus::WaitingForData;
    int line = 0;
    // Line by line, so that a problem is known by its line.
    for (qsizetype start = 0; start < json.size() && !listener.isOver();) {
        const qsizetype feed = json.indexOf('\n', start);
        const qsizetype end = feed < 0 ? json.size() : feed + 1;
        ++line;
        status = parser.parse(QByteArrayView(json).sliced(start, end - start));
        start = end;
    }
    ProjectDraft &draft = listener.draft();
    if (listener.refusal())
        return tl::unexpected(*listener.refusal());
    if (!draft.hasFormat)
        return tl::unexpected(foreignProjectError());
    if (!listener.damage().isEmpty())
        return damage(line, listener.damage());
    if (status != SBJson5ParserStatus::Complete)
        return damage(line, u"it ends too early"_s);
    if (!draft.hasVersion)
        return damage(line, u"it tells no version"_s);
    return std::move(draft.project);
}

Expected<Project> readProject(const QString &path)
{
    const auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    if (file->size() > static_cast<quint64>(kMostProjectBytes))
        return failure(u"the project is larger than %1 MiB"_s.arg(kMostProjectBytes >> 20));
    QFile bytes;
    bytes.open(file->descriptor(), QIODevice::ReadOnly | QIODevice::Unbuffered);
    const QByteArray json = bytes.read(kMostProjectBytes);
    if (bytes.error() != QFileDevice::NoError)
        return failure(bytes.errorString());
    return projectFromJson(json, folderOfProject(path));
}

} // namespace quorvin
