// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/IndexedFiles.h"

namespace quorvin::test {

using namespace Qt::StringLiterals;

FilelistItemPtr fileWith(const Expected<QuorvinDataPtr> &result)
{
    static int count = 0;
    const QString name = QString::number(++count);
    auto file = FilelistItem::itemWithFilename(u'/' + name, name);
    file->setResult(result);
    file->setIsDone(true);
    return file;
}

QuorvinDataPtr recordOfTexts(const QStringList &names, const QStringList &values)
{
    RecordContents record;
    record.isAudio = names.size() % 2 == 0;
    record.groups.beginGroup(u"G"_s);
    record.groups.beginStream(0);
    for (qsizetype i = 0; i < names.size(); ++i) {
        const auto flags = i % 7 == 6 ? ParameterFlag::SkipInExtended : ParameterFlag::None;
        record.groups.add(internTerm(u'k' + names[i], names[i]), values[i % values.size()], flags);
    }
    return std::make_shared<const QuorvinData>(std::move(record));
}

QString TextMaker::one(int longest)
{
    static const QString letters
        = u"aAbBeE1 2/:.\u00e9\u00c9\u0301\u00df\u1e9e\u0130\u0131\u03c3\u03c2\u03a3\u0434\u0414\u05d0\u0628"
          "\u0915\u094d\u4e2d\u6587\u30ac\u30ab\u3099\uac00\uac01\u11a8\uff21\uff41\u212a\ufb01\u00b2\u200d\u00ad"_s;
    QString text;
    for (int i = number(longest) + 1; i > 0; --i) {
        const int which = number(static_cast<int>(letters.size()) + 1);
        text += which < letters.size() ? QString(letters[which]) : u"\U00010400\U00010428"_s;
    }
    return text;
}

QStringList TextMaker::some(int count)
{
    QStringList texts;
    for (int i = 0; i < count; ++i)
        texts.append(one(6));
    return texts;
}

} // namespace quorvin::test
