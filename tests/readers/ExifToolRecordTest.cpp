// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "model/FailureKind.h"
#include "process/ExifToolStart.h"
#include "process/ReaderRunner.h"
#include "readers/exiftool/ExifToolImageInfo.h"
#include "readers/exiftool/ExifToolReader.h"
#include "support/FakeExifTool.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// The tree of an answer, a line a group: "group: key=label=value …".
QString treeOf(const QByteArray &json)
{
    const auto info = ExifToolImageInfo::initWithOutput(json);
    if (!info)
        return u"no: "_s + info.error().description;
    RecordContents record;
    prepareExiftoolData(*info, record.groups);
    QStringList lines;
    for (const ExtTreeItemPtr &group : QuorvinData(std::move(record)).extendedContent()) {
        QStringList tags;
        for (const ExtTreeItemPtr &tag : *group->children())
            tags.append(tag->key().value_or(QString()) + u'=' + tag->name() + u'=' + tag->value()->plain);
        lines.append(group->name() + u": "_s + tags.join(u' '));
    }
    return lines.join(u'\n');
}

Job recordOf(const QString &path)
{
    return {RecordRequest{path, {.useExiftoolForVideo = true}}, {}};
}

QString outcomeOf(JobRunner &runner, const Job &job)
{
    const JobResult result = runner.run(job);
    return result ? u"well"_s : result.error().description;
}

} // namespace

TEST(ExifToolRecord, TagsBecomeParametersInTheirOrder)
{
    EXPECT_EQ(treeOf(R"([{"SourceFile":"/a",
        "ExifTool:ExifTool:ExifTool::ExifToolVersion":{"desc":"V","val":12.57},
        "File:System:Other::FileName":{"desc":"N","val":"a"},
        "File:File:Other::MIMEType":{"desc":"MIME","id":1,"val":"video/x"},
        "EXIF:IFD0:Image:Make":{"desc":"Make","val":true},
        "QuickTime:Track1:Video:Copy2:Gamma":{"desc":"Gamma","val":12.5},
        "EXIF:IFD0:Image::Size":{"desc":"Size","val":-3},
        "a:b:c":{"desc":"D","val":"few fields"},
        "QuickTime:Track1:Video::None":{"desc":"no value"}}, {}])"),
              u"Container: File.File.Other.MIMEType=MIME=video/x\n"
              "IFD0: EXIF.IFD0.Image.Make=Make=1 EXIF.IFD0.Image.Size=Size=-3\n"
              "Track1: QuickTime.Track1.Video.Copy2.Gamma=Gamma=12.5"_s);
    EXPECT_EQ(treeOf("[]"), u"no: exiftool gave no proper answer"_s);
    EXPECT_EQ(treeOf("[{\"a\":}"), u"no: exiftool gave no proper answer"_s);
    EXPECT_EQ(treeOf(QByteArray(1'000'000, '[')), u"no: exiftool gave no proper answer"_s);
}

TEST(ExifToolRecord, OneDurationCountsAndWhatFollowsAListIsLost)
{
    EXPECT_EQ(
        treeOf(R"([{"A:B:C::Duration":{"desc":"First","val":"1 s"},"D:E:F:TrackDuration":{"desc":"T","val":2},
        "D:E:F::Duration":{"desc":"Last","val":0.1},"A:B:C:List":{"desc":"L","val":["x",7,0.25]},
        "A:B:C:After":{"desc":"A","val":1}}])"),
        u"E: Duration=Last=0.1 D.E.F.TrackDuration=T=2 Duration=Last=0.1\n"
        "B: A.B.C.List=L=x, 7, 0.25"_s);
}

TEST(ExifToolRecord, FileIsReadAlikeInBothKindsOfProcess)
{
    if (exifToolProgram().empty())
        GTEST_SKIP() << "no exiftool";
    const auto reader = makeReaderRunner();
    for (const QString &name : {u"movie.mp4"_s, u"tone.flac"_s, u"photo.jpg"_s}) {
        const Job job = recordOf(test::sample(name));
        const JobResult there = reader->run(job);
        const JobResult here = makeInProcessRunner()->run(job);
        ASSERT_TRUE(there && here) << name.toStdString();
        const QuorvinDataPtr record = std::get<QuorvinDataPtr>(*there);
        EXPECT_TRUE(record->contents() == std::get<QuorvinDataPtr>(*here)->contents()) << name.toStdString();
        EXPECT_EQ(record->isImage(), name == u"photo.jpg"_s);
        EXPECT_EQ(record->isUnknown(), name != u"photo.jpg"_s);
    }
}

TEST(ExifToolRecord, PrivateFactsStayInStructuredExports)
{
    if (exifToolProgram().empty())
        GTEST_SKIP() << "no exiftool";
    const auto sectionsOf = [](const RecordOptions &options) {
        const Job job{RecordRequest{test::sample(u"movie.mp4"_s), options}, {}};
        const QuorvinDataPtr record = std::get<QuorvinDataPtr>(*makeReaderRunner()->run(job));
        EXPECT_FALSE(record->stringForExportTextWithoutFilePrivate().contains(u"Location:"_s));
        const ExportInfo info = record->computeExportInfoWithoutFilePrivate(true);
        QStringList keys;
        for (const ExportRow &row : info.sections.front().streams.front())
            keys.append(row.term->key);
        return keys;
    };
    EXPECT_FALSE(sectionsOf({}).contains(u"FileLocation"_s));
    EXPECT_TRUE(sectionsOf({.useExiftoolForVideo = true}).contains(u"FileLocation"_s));
}

TEST(ExifToolRecord, OneThatIsLostCostsItsFileAlone)
{
    const test::TestFolder folder;
    const QString good = folder.write(u"good"_s);
    const QString die = folder.write(u"die"_s);
    const QString hang = folder.write(u"hang"_s);
    const test::FakeExifTool fake;
    const auto reader = makeReaderRunner();
    const auto inProcess = makeInProcessRunner();
    for (JobRunner *runner : {reader.get(), inProcess.get()}) {
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(outcomeOf(*runner, recordOf(good)), u"exiftool gave no proper answer"_s);
            EXPECT_EQ(outcomeOf(*runner, recordOf(die)), u"stopped: exiftool broke down"_s);
        }
        Job job = recordOf(hang);
        job.limits.wallSeconds = 1;
        EXPECT_EQ(outcomeOf(*makeReaderRunner(), job), u"stopped: took too long"_s);
        EXPECT_EQ(outcomeOf(*runner, recordOf(good)), u"exiftool gave no proper answer"_s);
    }
}

TEST(ExifToolRecord, MissingProgramIsToldAndHurtsNoImage)
{
    const test::NoExifTool none;
    const auto reader = makeReaderRunner();
    const auto refused = reader->run(recordOf(test::sample(u"movie.mp4"_s)));
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error(), failure(FailureKind::NoExifTool).value()) << "kind and words cross";
    EXPECT_EQ(outcomeOf(*reader, recordOf(test::sample(u"photo.jpg"_s))), u"well"_s);
    EXPECT_EQ(outcomeOf(*reader, {ReportRequest{test::sample(u"photo.jpg"_s), u"exiftool"_s, true}, {}}),
              u"exiftool is not installed"_s);
}

} // namespace quorvin
