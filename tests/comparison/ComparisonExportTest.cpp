// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "comparison/ComparisonExport.h"

#include "support/TestFolder.h"

#include <QBuffer>
#include <QFile>
#include <QJsonDocument>

#include <gtest/gtest.h>

namespace quorvin::ComparisonExport {

using namespace Qt::StringLiterals;

namespace {

const QStringList kPaths{u"/x/one & two.mov"_s, u"/y/b.mkv"_s};

ComparisonContent rows(const QList<QStringList> &values)
{
    ComparisonContent content;
    for (const QStringList &row : values) {
        content.emplace_back().values = row;
        content.back().allEqual = row.size() == 3 && row[1] == row[2];
    }
    return content;
}

const QList<QStringList> kValues{
    {u"Video"_s}, {u"Title"_s, u"a\n<b>"_s, QString()}, {u"Gain"_s, u"-1 dB"_s, u"-1 dB"_s}};

QByteArray written(const QString &format)
{
    QBuffer device;
    device.open(QIODevice::WriteOnly);
    EXPECT_TRUE(write(format, rows(kValues), kPaths, device));
    return device.data();
}

} // namespace

TEST(ComparisonExport, HtmlHasTheFilesAboveTheirColumns)
{
    const QByteArray expected
        = "<html>\n<head><title>Quorvin Comparison</title>\n<meta charset=\"utf-8\" />"
          "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\" />\n<style "
          "type=\"text/css\">\n"
          "table { border-collapse:collapse; } \n"
          "table,th,td { border:1px solid #ccc; font-family:sans-serif; font-size:13px; }\n"
          "th,td { padding:3px; } \n.h { font-style:italic; } \n.g { background-color:#f2f2f2; } \n"
          ".f { font-weight:bold; } \n</style>\n</head>\n"
          "<table><tr><td>&nbsp;</td><td class=h>one &amp; two.mov</td><td class=h>b.mkv</td></tr>\n"
          "<tr><td colspan=3 class='g'><b>Video</b></td></tr>\n"
          "<tr><td class=f>Title</td><td class=o>a<br />&lt;b&gt;</td><td class=o></td></tr>\n"
          "<tr><td class=f>Gain</td><td class=o>-1 dB</td><td class=o>-1 dB</td></tr></table>\n"
          "</body>\n</html>\n";
    EXPECT_EQ(written(u"html"_s), expected);
    EXPECT_EQ(htmlExportStringForContent(rows(kValues), kPaths).toUtf8(), expected);
    EXPECT_EQ(htmlLineForItems({u"A\nB"_s}, 2), u"<tr><td colspan=2 class='g'><b>A\nB</b></td></tr>"_s);
    EXPECT_EQ(htmlLineForItems({}, 2), u"<tr></tr>"_s);
    EXPECT_TRUE(htmlExportStringForContent({}, {}).contains(u"<table><tr><td>&nbsp;</td></tr></table>\n"_s));
}

TEST(ComparisonExport, CsvFillsHeadingsUpAndGuardsItsFields)
{
    const QByteArray expected = "\"Video\",,\n\"Title\",\"a\n<b>\",\n\"Gain\",\"'-1 dB\",\"'-1 dB\"";
    EXPECT_EQ(written(u"csv"_s), "\xef\xbb\xbf" + expected);
    EXPECT_EQ(csvExportStringForContent(rows(kValues), kPaths).toUtf8(), expected);
    EXPECT_EQ(csvExportStringForContent(rows({{}}), kPaths), u",,"_s);
    EXPECT_EQ(csvExportStringForContent({}, {}), QString());
}

TEST(ComparisonExport, JsonHasTheRowsInTheirSections)
{
    const auto expected = QJsonDocument::fromJson(
        R"({"files": ["/x/one & two.mov", "/y/b.mkv"], "sections": [{"section": "Video", "rows": [
            {"parameter": "Title", "values": ["a\n<b>", ""], "allEqual": false},
            {"parameter": "Gain", "values": ["-1 dB", "-1 dB"], "allEqual": true}]}]})");
    EXPECT_EQ(QJsonDocument::fromJson(written(u"json"_s)), expected);
}

TEST(ComparisonExport, TellsThatADeviceTakesNoMore)
{
    for (const QString &format : formats()) {
        QFile full(u"/dev/full"_s);
        ASSERT_TRUE(full.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        const auto result = write(format, rows(kValues), kPaths, full);
        ASSERT_FALSE(result) << format.toStdString();
        EXPECT_FALSE(result.error().description.isEmpty());
    }
}

TEST(ComparisonExport, RowsGoToTheClipboardAsTableAndAsFields)
{
    const ComparisonContent content = rows({{u"A & B"_s}, {u"Title"_s, u"x\r\n\ty"_s, u"-1"_s}});
    const std::vector<const ComparisonRow *> both{&content[0], &content[1]};
    EXPECT_EQ(pboardHtml(both),
              u"<table cellspacing=0><tr><td><b>A &amp; B</b></td></tr>\n"
              "<tr><td>Title</td><td>x<br />\ty</td><td>-1</td></tr></table>"_s);
    EXPECT_EQ(pboardText(both), u"A & B\nTitle\tx  y\t-1"_s);
}

} // namespace quorvin::ComparisonExport
