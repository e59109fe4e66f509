// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/TestRecords.h"

#include "export/ExportFormats.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <utility>

namespace quorvin::test {

using namespace Qt::StringLiterals;
using enum ParameterFlag;

namespace {

void add(RecordContents &record, const QString &key, const QString &value, ParameterFlags flags = {},
         quint16 subgroup = 0)
{
    record.groups.add(internTerm(key, key.toUpper()), value, flags, subgroup);
}

void begin(RecordContents &record, const QString &group, int number = 0)
{
    if (number <= 1)
        record.groups.beginGroup(group, number == 1);
    record.groups.beginStream(number);
}

ExportEntry entry(RecordContents &&record, const QString &pathPrefix)
{
    const QString filename = record.filename;
    return {filename, pathPrefix, std::make_shared<const QuorvinData>(std::move(record))};
}

} // namespace

ExportEntry movieEntry()
{
    RecordContents record;
    record.filename = u"/x/one.mov"_s;
    begin(record, u"File"_s);
    add(record, u"folder"_s, u"/x"_s, IsPrivateInfo);
    begin(record, u"Audio"_s, 1);
    add(record, u"hidden"_s, u"5%s"_s, SkipInExtended);
    add(record, u"k<"_s, u"1"_s);
    add(record, u"k<"_s, u"R&D\n\u20ac"_s);
    begin(record, u"Audio"_s, 2);
    add(record, u"title"_s, u"-1"_s, SkipInExport);
    record.groups.beginGroup(u"Menu"_s);
    return entry(std::move(record), u"a/one.mov"_s);
}

ExportEntry pictureEntry()
{
    RecordContents record;
    record.filename = u"/x/2.jpg"_s;
    record.isImage = true;
    begin(record, u"File"_s);
    add(record, u"folder"_s, u"/x"_s, IsPrivateInfo | IsPrivateInTreeOnly);
    begin(record, u"MakerNote"_s);
    const quint16 focus = record.groups.addSubgroup(u"Auto Focus"_s);
    const quint16 open = record.groups.addSubgroup(QString());
    add(record, u"m"_s, u""_s, {}, open);
    add(record, u"f"_s, u"\"on\""_s, {}, focus);
    return entry(std::move(record), u"2.jpg"_s);
}

QuorvinDataPtr recordOf(const QStringList &parameters)
{
    RecordContents record;
    QString open;
    for (const QString &line : parameters) {
        const QString stream = line.section(u'/', 0, 0);
        const QString parameter = line.section(u'/', 1);
        const QString key = parameter.section(u'=', 0, 0);
        const QString number = stream.section(u'#', 1);
        if (std::exchange(open, stream) != stream) {
            record.groups.beginGroup(stream.section(u'#', 0, 0), number.toInt() > 0);
            record.groups.beginStream(number.isEmpty() ? 1 : number.toInt());
        }
        add(record, key.chopped(key.endsWith(u'!') ? 1 : 0), parameter.section(u'=', 1),
            key.endsWith(u'!') ? SkipInComparison : None);
    }
    return std::make_shared<const QuorvinData>(std::move(record));
}

ExportEntry entryWithValue(const QString &value)
{
    RecordContents record;
    record.filename = u"/x/"_s + value;
    begin(record, u"File"_s);
    add(record, u"key"_s, value);
    return entry(std::move(record), value);
}

QByteArray exported(const QString &format, const std::vector<ExportEntry> &entries, bool skipFilePrivate)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    const auto writer = makeExportWriter(format, device, skipFilePrivate);
    for (const ExportEntry &one : entries)
        EXPECT_TRUE(writer->write(one));
    EXPECT_TRUE(writer->finish());
    return device.data();
}

} // namespace quorvin::test
