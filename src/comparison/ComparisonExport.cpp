// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonExport.h"

#include "SBJson5/SBJson5StreamWriter.h"
#include "export/Csv.h"
#include "export/HtmlText.h"
#include "export/JsonBytes.h"
#include "export/OutputBuffer.h"
#include "platform/NativePath.h"

#include <QBuffer>
#include <QIODevice>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin::ComparisonExport {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kHtmlHead
    = "<html>\n<head><title>Quorvin Comparison</title>\n"
      "<meta charset=\"utf-8\" /><meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" />\n"
      "<style type=\"text/css\">\n"
      "table { border-collapse:collapse; } \n"
      "table,th,td { border:1px solid #ccc; font-family:sans-serif; font-size:13px; }\n"
      "th,td { padding:3px; } \n"
      ".h { font-style:italic; } \n"
      ".g { background-color:#f2f2f2; } \n"
      ".f { font-weight:bold; } \n"
      "</style>\n</head>\n"_L1;
constexpr auto kHtmlTail = "</body>\n</html>\n"_L1;
constexpr quint64 kMaxDepth = 100;

QString escaped(const QString &text)
{
    return stringByEncodingHTMLEntities(text, true);
}

QString escapedAndBroken(const QString &text)
{
    return stringWithNewLinesAsBRs(escaped(text));
}

/// The cells one behind the other, each as `encode` has it; neighbours often share their text.
template <typename Encode>
QString joinedCells(std::span<const QString> cells, Encode encode)
{
    QString joined;
    QString encoded;
    const QString *before = nullptr;
    for (const QString &cell : cells) {
        if (!before || !shareText(*before, cell))
            encoded = encode(cell);
        joined += encoded;
        before = &cell;
    }
    return joined;
}

void writeHtml(const Rows &rows, const QStringList &description, OutputBuffer &out)
{
    QStringList names;
    for (const QString &path : description)
        names.append(lastPathComponent(path));
    out.putText(kHtmlHead);
    out.put("<table>");
    out.putText(htmlLineForColumns(names));
    while (const ComparisonRow *row = rows())
        out.putText(u'\n' + htmlLineForItems(row->values, description.size() + 1));
    out.put("</table>\n");
    out.putText(kHtmlTail);
}

QString csvLine(const ComparisonRow &row, qsizetype files)
{
    const QString name = Utilities::csvEscapeAndQuote(row.values.value(0));
    if (row.isHeading())
        return name + Utilities::csvSeparator().repeated(files);
    return name + joinedCells(row.inFiles(), [](const QString &value) {
               return Utilities::csvSeparator() + Utilities::csvEscapeAndQuote(value);
           });
}

void writeCsvText(const Rows &rows, const QStringList &description, OutputBuffer &out)
{
    bool isFirst = true;
    while (const ComparisonRow *row = rows()) {
        if (!std::exchange(isFirst, false))
            out.put("\n");
        out.putText(csvLine(*row, description.size()));
    }
}

void writeCsv(const Rows &rows, const QStringList &description, OutputBuffer &out)
{
    out.put(Utilities::UTF8BOMData());
    writeCsvText(rows, description, out);
}

void writeJsonTexts(std::span<const QString> texts, SBJson5StreamWriter &json)
{
    json.writeArrayOpen();
    for (const QString &text : texts)
        json.writeString(text);
    json.writeArrayClose();
}

void writeJsonRow(const ComparisonRow &row, SBJson5StreamWriter &json)
{
    json.writeObjectOpen();
    json.writeString(u"parameter"_s);
    json.writeString(row.values.front());
    json.writeString(u"values"_s);
    writeJsonTexts(row.inFiles(), json);
    json.writeString(u"allEqual"_s);
    json.writeBool(row.allEqual);
    json.writeObjectClose();
}

/// A section ends where the next heading stands.
void writeJsonSections(const Rows &rows, SBJson5StreamWriter &json)
{
    json.writeArrayOpen();
    for (const ComparisonRow *row = rows(); row;) {
        json.writeObjectOpen();
        json.writeString(u"section"_s);
        json.writeString(row->values.value(0));
        json.writeString(u"rows"_s);
        json.writeArrayOpen();
        while ((row = rows()) && !row->isHeading())
            writeJsonRow(*row, json);
        json.writeArrayClose();
        json.writeObjectClose();
    }
    json.writeArrayClose();
}

void writeJson(const Rows &rows, const QStringList &description, OutputBuffer &out)
{
    JsonBytes bytes(out);
    SBJson5StreamWriter json(bytes, {.maxDepth = kMaxDepth, .humanReadable = true});
    json.writeObjectOpen();
    json.writeString(u"files"_s);
    writeJsonTexts({description.cbegin(), description.cend()}, json);
    json.writeString(u"sections"_s);
    writeJsonSections(rows, json);
    json.writeObjectClose();
}

using Writer = void (*)(const Rows &, const QStringList &, OutputBuffer &);

struct Format {
    QLatin1String key;
    Writer write;
};
constexpr std::array kFormats{Format{"csv"_L1, writeCsv}, Format{"html"_L1, writeHtml},
                              Format{"json"_L1, writeJson}};

Rows rowsOf(const ComparisonContent &content)
{
    return [row = content.begin(), end = content.end()]() mutable { return row == end ? nullptr : &*row++; };
}

QString textFrom(Writer write, const ComparisonContent &content, const QStringList &description)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    OutputBuffer out(bytes);
    write(rowsOf(content), description, out);
    out.flush();
    return QString::fromUtf8(bytes.data());
}

/// On one line, in one field.
QString field(QString value)
{
    value.replace(u"\r\n"_s, u" "_s);
    std::ranges::replace_if(
        value, [](QChar unit) { return unit < u' ' || unit == QChar::LineSeparator; }, u' ');
    return value;
}

} // namespace

QStringList formats()
{
    QStringList keys;
    for (const Format &format : kFormats)
        keys.append(format.key);
    return keys;
}

Expected<void> write(const QString &format, const ComparisonContent &content, const QStringList &description,
                     QIODevice &device)
{
    return write(format, rowsOf(content), description, device);
}

Expected<void> write(const QString &format, const Rows &rows, const QStringList &description,
                     QIODevice &device)
{
    const auto *row = std::ranges::find_if(kFormats, [&](const Format &each) { return each.key == format; });
    Q_ASSERT(row != kFormats.end());
    OutputBuffer out(device);
    row->write(rows, description, out);
    return out.flush();
}

QString htmlExportStringForContent(const ComparisonContent &content, const QStringList &description)
{
    return textFrom(writeHtml, content, description);
}

QString csvExportStringForContent(const ComparisonContent &content, const QStringList &description)
{
    return textFrom(writeCsvText, content, description);
}

QString htmlLineForColumns(const QStringList &columns)
{
    QString cells;
    for (const QString &column : columns)
        cells += "<td class=h>"_L1 + escaped(column) + "</td>"_L1;
    return "<tr><td>&nbsp;</td>"_L1 + cells + "</tr>"_L1;
}

QString htmlLineForItems(const QStringList &items, qsizetype totalColumns)
{
    if (items.size() == 1)
        return "<tr><td colspan="_L1 + QString::number(totalColumns) + " class='g'><b>"_L1
            + escaped(items.front()) + "</b></td></tr>"_L1;
    if (items.isEmpty())
        return u"<tr></tr>"_s;
    const std::span cells(items.cbegin(), items.cend());
    return "<tr><td class=f>"_L1 + escapedAndBroken(cells.front()) + "</td>"_L1
        + joinedCells(
               cells.subspan(1),
               [](const QString &item) { return "<td class=o>"_L1 + escapedAndBroken(item) + "</td>"_L1; })
        + "</tr>"_L1;
}

QString pboardHtmlLineForItems(const QStringList &items)
{
    if (items.size() == 1)
        return "<tr><td><b>"_L1 + escaped(items.front()) + "</b></td></tr>"_L1;
    QString cells;
    for (const QString &item : items)
        cells += "<td>"_L1 + escapedAndBroken(item) + "</td>"_L1;
    return "<tr>"_L1 + cells + "</tr>"_L1;
}

QString pboardHtml(std::span<const ComparisonRow *const> rows)
{
    QStringList lines;
    for (const ComparisonRow *row : rows)
        lines.append(pboardHtmlLineForItems(row->values));
    return "<table cellspacing=0>"_L1 + lines.join(u'\n') + "</table>"_L1;
}

QString pboardText(std::span<const ComparisonRow *const> rows)
{
    QStringList lines;
    for (const ComparisonRow *row : rows) {
        QStringList fields;
        std::ranges::transform(row->values, std::back_inserter(fields), field);
        lines.append(fields.join(u'\t'));
    }
    return lines.join(u'\n');
}

} // namespace quorvin::ComparisonExport
