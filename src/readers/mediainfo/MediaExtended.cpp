// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/MediaExtended.h"

#include "readers/mediainfo/ParameterFaces.h"

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// One stream on its way into the groups.
class StreamWalk {
public:
    StreamWalk(const oMediaInfo &info, StreamKind kind, quint64 number, bool useSIUnits,
               ParameterGroups &groups)
        : _info(info), _kind(kind), _number(number), _useSIUnits(useSIUnits), _groups(groups)
    {
    }

    void run()
    {
        const auto standard = standardFaces(_info, _kind);
        const auto standardCount = static_cast<qint64>(standard.size());
        for (qint64 i = 0; i < standardCount; ++i) {
            if (standard[static_cast<std::size_t>(i)].shown)
                add(standard[static_cast<std::size_t>(i)], _info.GetI_Text(_kind, _number, i));
        }
        const qint64 count = _info.numberOfOptionsInStream(_number, _kind);
        for (qint64 i = standardCount; i < count; ++i) {
            const ParameterFace face = faceOf(_info, _kind, _number, i);
            if (face.shown)
                add(face, _info.GetI_Text(_kind, _number, i));
        }
    }

private:
    void add(const ParameterFace &face, const QString &text)
    {
        if (text.isEmpty() || isOfBorrowedName(face))
            return;
        if (face.rule == ParameterRule::Duration)
            addUnder(u"Duration/String1"_s, face);
        else if (face.rule == ParameterRule::StreamSize && _useSIUnits)
            addUnder(face.term->key + "/SI"_L1, face);
        else
            _groups.add(face.term, text);
    }

    /// What the library says of the name of the descriptor through which it reads the file.
    bool isOfBorrowedName(const ParameterFace &face) const
    {
        return _info.isOpenByDescriptor() && face.term->key == "FileExtension_Invalid"_L1;
    }

    /// The parameter under another key, with that key's value, and the label it has.
    void addUnder(const QString &key, const ParameterFace &face)
    {
        _groups.add(internTerm(key, face.term->label), _info.GetFromStream(_kind, _number, key));
    }

    const oMediaInfo &_info;
    StreamKind _kind;
    quint64 _number;
    bool _useSIUnits;
    ParameterGroups &_groups;
};

} // namespace

void prepareMediainfoData(const oMediaInfo &info, const RecordOptions &options, ParameterGroups &groups)
{
    for (const StreamKind kind : kStreamKindOrder) {
        const qint64 count = info.numberOfStreams(kind);
        groups.beginGroup(streamKindToHumanString(kind), count != 1);
        for (qint64 i = 0; i < count; ++i) {
            groups.beginStream(static_cast<int>(i) + 1);
            StreamWalk(info, kind, static_cast<quint64>(i), options.useSIUnits, groups).run();
            groups.endStreamUnlessEmpty();
        }
    }
}

ExtTreeItems completeMediaInfo(const QString &report)
{
    ExtTreeItems tree;
    ExtTreeItems leaves;
    std::optional<QString> heading;
    const auto closeHeading = [&] {
        if (heading)
            tree.push_back(ExtTreeItem::groupTreeWithName(*heading, std::exchange(leaves, {})));
    };
    for (const QString &line : report.split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split(" : "_L1);
        if (fields.size() == 2) {
            (heading ? leaves : tree)
                .push_back(ExtTreeItem::itemWithName(fields[0].trimmed(), fields[1].trimmed()));
            continue;
        }
        closeHeading();
        heading = line;
    }
    closeHeading();
    return tree;
}

} // namespace quorvin
