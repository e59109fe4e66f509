// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/CountText.h"

#include "SBJson5/SBJson5StreamWriter.h"
#include "export/Csv.h"
#include "export/JsonBytes.h"
#include "export/OutputBuffer.h"
#include "filefacts/Durations.h"
#include "filefacts/Sizes.h"
#include "statistics/MeasureText.h"

#include <QIODevice>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// As a row's kind stands in documents.
QString kindName(CountRow::Kind kind)
{
    switch (kind) {
    case CountRow::Kind::Value:
        return u"value"_s;
    case CountRow::Kind::Range:
        return u"range"_s;
    case CountRow::Kind::Incomparable:
        return u"incomparable"_s;
    case CountRow::Kind::Missing:
        return u"missing"_s;
    case CountRow::Kind::Failed:
        break;
    }
    return u"failed"_s;
}

QString filesText(qint64 files)
{
    return files == 1 ? u"1 file"_s : u"%1 files"_s.arg(files);
}

QString quoted(QString text)
{
    constexpr qsizetype kLongest = 60;
    text = text.simplified();
    if (text.size() > kLongest)
        text = text.first(kLongest) + u'…';
    return u'“' + text + u'”';
}

QString mostFrequentText(const ParameterCount &count)
{
    const ParameterCount::Value &first = count.values.front();
    if (count.values.size() == 1)
        return u"in all of them "_s + quoted(first.text);
    if (first.sum.files == 1)
        return u"%1 different values, none in two files"_s.arg(count.values.size());
    return u"%1 different values, most often %2 (%3)"_s.arg(count.values.size())
        .arg(quoted(first.text), filesText(first.sum.files));
}

QString spreadText(const Figures &figures)
{
    const auto text = [&](double value) { return measuredText(value, figures.measure); };
    if (figures.least == figures.greatest)
        return {};
    return u"; from %1 to %2, half of them from %3 to %4"_s.arg(text(figures.least), text(figures.greatest),
                                                                text(figures.lowerQuartile),
                                                                text(figures.upperQuartile));
}

struct Column {
    QLatin1String title;
    QString (*text)(const CountRow &row);
    QString (*forPeople)(const CountRow &row); ///< null: not for them
};

constexpr std::array kColumns{
    Column{"Row"_L1, [](const CountRow &row) { return kindName(row.kind); }, nullptr},
    Column{"Value"_L1, [](const CountRow &row) { return row.text; }, nullptr},
    Column{"Files"_L1, [](const CountRow &row) { return QString::number(row.sum.files); },
           [](const CountRow &row) { return QString::number(row.sum.files); }},
    Column{"Streams"_L1, [](const CountRow &row) { return QString::number(row.sum.streams); },
           [](const CountRow &row) {
               return row.sum.streams == 0 ? QString() : QString::number(row.sum.streams);
           }},
    Column{"Duration (ms)"_L1, [](const CountRow &row) { return QString::number(row.sum.duration); },
           [](const CountRow &row) { return Utilities::formatDurationUpToSeconds(row.sum.duration); }},
    Column{"Size (bytes)"_L1, [](const CountRow &row) { return QString::number(row.sum.bytes); },
           [](const CountRow &row) { return Utilities::filesizeToMacHumanString(row.sum.bytes); }},
};

QStringList titles()
{
    QStringList all;
    for (const Column &column : kColumns)
        all.append(column.title);
    return all;
}

QStringList fieldsOf(const CountRow &row)
{
    QStringList fields;
    for (const Column &column : kColumns)
        fields.append(column.text(row));
    return fields;
}

void writeText(const CountTable &table, OutputBuffer &out)
{
    constexpr int kWidth = 10;
    constexpr int kSteps = 2;
    out.putText(headlineOf(table) + u'\n');
    if (table.figures())
        out.putText(u'\n' + figureLinesOf(*table.figures()).join(u'\n') + u'\n');
    out.putText(u'\n' + u"Files"_s.rightJustified(kWidth) + u"Streams"_s.rightJustified(kWidth)
                + u"Duration"_s.rightJustified(kWidth) + u"Size"_s.rightJustified(kWidth) + u"  Value\n"_s);
    for (const CountRow &row : table.rows()) {
        QString line;
        for (const Column &column : kColumns) {
            if (column.forPeople)
                line += column.forPeople(row).rightJustified(kWidth);
        }
        const QString text = row.text.simplified();
        out.putText(line + QString(kSteps, u' ') + (row.isOfWords() ? u'(' + text + u')' : text) + u'\n');
    }
}

void writeCsv(const CountTable &table, OutputBuffer &out)
{
    out.put(Utilities::UTF8BOMData());
    out.putText(Utilities::csvEscapeAndQuoteArray(titles()));
    for (const CountRow &row : table.rows())
        out.putText(u'\n' + Utilities::csvEscapeAndQuoteArray(fieldsOf(row)));
}

void writeMember(SBJson5StreamWriter &json, const QString &key, const QVariant &value)
{
    json.writeString(key);
    json.writeValue(value);
}

void writeJsonSum(SBJson5StreamWriter &json, const CountSum &sum)
{
    writeMember(json, u"files"_s, sum.files);
    writeMember(json, u"streams"_s, sum.streams);
    writeMember(json, u"duration"_s, sum.duration);
    writeMember(json, u"bytes"_s, sum.bytes);
}

/// Dates as texts, all else as numbers in the unit.
void writeJsonFigures(SBJson5StreamWriter &json, const Figures &figures)
{
    const bool isDate = figures.measure.kind == QuantityKind::Date;
    const auto valueOf = [&](double value) {
        return isDate ? QVariant(measuredText(value, figures.measure).replace(u' ', u'T')) : QVariant(value);
    };
    json.writeString(u"number"_s);
    json.writeObjectOpen();
    writeMember(json, u"unit"_s, isDate ? u"date"_s : QString(figures.measure.unit));
    writeMember(json, u"least"_s, valueOf(figures.least));
    writeMember(json, u"greatest"_s, valueOf(figures.greatest));
    writeMember(json, u"mean"_s, valueOf(figures.mean));
    writeMember(json, u"median"_s, valueOf(figures.median));
    json.writeString(u"quartiles"_s);
    json.writeArrayOpen();
    json.writeValue(valueOf(figures.lowerQuartile));
    json.writeValue(valueOf(figures.upperQuartile));
    json.writeArrayClose();
    writeMember(json, u"streams"_s, figures.streams);
    json.writeObjectClose();
}

void writeJson(const CountTable &table, OutputBuffer &out)
{
    JsonBytes bytes(out);
    SBJson5StreamWriter json(bytes, {.humanReadable = true});
    const ParameterCount &count = table.count();
    json.writeObjectOpen();
    writeMember(json, u"parameter"_s, count.parameter);
    writeMember(json, u"files"_s, count.countedFiles());
    writeMember(json, u"with"_s, count.filesWithValue());
    writeMember(json, u"missing"_s, static_cast<qint64>(count.missing.size()));
    json.writeString(u"values"_s);
    json.writeArrayOpen();
    for (const ParameterCount::Value &value : count.values) {
        json.writeObjectOpen();
        writeMember(json, u"value"_s, value.text);
        writeJsonSum(json, value.sum);
        json.writeObjectClose();
    }
    json.writeArrayClose();
    if (table.figures())
        writeJsonFigures(json, *table.figures());
    json.writeObjectClose();
}

struct CountFormat {
    QLatin1String key;
    void (*write)(const CountTable &table, OutputBuffer &out);
};
constexpr std::array kCountFormats{CountFormat{"txt"_L1, writeText}, CountFormat{"csv"_L1, writeCsv},
                                   CountFormat{"json"_L1, writeJson}};

QString oneField(QString text)
{
    std::ranges::replace_if(
        text, [](QChar unit) { return unit < u' ' || unit == QChar::LineSeparator; }, u' ');
    return text;
}

} // namespace

QString headlineOf(const CountTable &table)
{
    const ParameterCount &count = table.count();
    if (count.countedFiles() == 0)
        return u"There is no file to count."_s;
    const QString all = filesText(count.countedFiles());
    if (count.parameter == kFailures)
        return count.values.empty() ? u"All %1 could be read."_s.arg(all)
                                    : u"%1 of %2 could not be read: %3."_s.arg(count.filesWithValue())
                                          .arg(all, mostFrequentText(count));
    if (count.values.empty())
        return u"None of %1 has %2."_s.arg(all, count.parameter);
    const QString spread = table.figures() ? spreadText(*table.figures()) : QString();
    return u"%1 of %2 have %3: %4%5."_s.arg(count.filesWithValue())
        .arg(all, count.parameter, mostFrequentText(count), spread);
}

QStringList figureLinesOf(const Figures &figures)
{
    const auto line = [&](const QString &name, double value) {
        return name + u": "_s + measuredText(value, figures.measure);
    };
    return {line(u"Least"_s, figures.least),       line(u"Lower quartile"_s, figures.lowerQuartile),
            line(u"Median"_s, figures.median),     line(u"Upper quartile"_s, figures.upperQuartile),
            line(u"Greatest"_s, figures.greatest), line(u"Mean"_s, figures.mean)};
}

QStringList countFormats()
{
    QStringList keys;
    for (const CountFormat &format : kCountFormats)
        keys.append(format.key);
    return keys;
}

Expected<void> writeCount(const QString &format, const CountTable &table, QIODevice &device)
{
    const auto *const row
        = std::ranges::find_if(kCountFormats, [&](const CountFormat &each) { return each.key == format; });
    Q_ASSERT(row != kCountFormats.end());
    OutputBuffer out(device);
    row->write(table, out);
    return out.flush();
}

QString tabbedText(std::span<const CountRow> rows)
{
    QStringList lines{titles().join(u'\t')};
    for (const CountRow &row : rows) {
        QStringList fields;
        for (const QString &field : fieldsOf(row))
            fields.append(oneField(field));
        lines.append(fields.join(u'\t'));
    }
    return lines.join(u'\n');
}

} // namespace quorvin
