// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs/InProcessRunner.h"
#include "process/ReaderRunner.h"
#include "support/Pictures.h"
#include "support/TestFolder.h"
#include "surgery/AttachmentFiles.h"

#include <QImage>

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

SavedFiles picturesOf(const QString &path, const QString &folder)
{
    const auto runner = makeReaderRunner();
    const JobResult result
        = runner->run({ExtractionRequest{path, folder, ExtractionRequest::Kind::Pictures}, {}});
    EXPECT_TRUE(result) << result.error().description.toStdString();
    return result ? std::get<SavedFiles>(*result) : SavedFiles();
}

} // namespace

TEST(PictureExtraction, SavesEachCoverUnderANameOfItsOwn)
{
    const test::TestFolder folder;
    const QString song = test::sample(u"two-covers.mp3"_s);
    const SavedFiles saved = picturesOf(song, folder.path());
    EXPECT_TRUE(saved.problems.empty());
    ASSERT_EQ(saved.paths.size(), 2U);
    const QStringList names = folder.names();
    EXPECT_EQ(names.size(), 2) << names.join(u'|').toStdString();
    for (const QString &path : saved.paths)
        EXPECT_FALSE(QImage(path).isNull()) << path.toStdString();

    const QByteArray first = test::contentOf(saved.paths[0]);
    const SavedFiles again = picturesOf(song, folder.path());
    EXPECT_EQ(folder.names().size(), 4) << "nothing was replaced";
    EXPECT_EQ(test::contentOf(again.paths.at(0)), first);
}

TEST(PictureExtraction, SavesThePreviewsOfImages)
{
    const test::TestFolder folder;
    const SavedFiles photo = picturesOf(test::sample(u"photo.jpg"_s), folder.path());
    ASSERT_FALSE(photo.paths.empty());
    EXPECT_EQ(photo.paths.front(), folder / u"photo #1.jpg"_s);
    EXPECT_FALSE(QImage(photo.paths.front()).isNull());

    const test::TestFolder out;
    EXPECT_TRUE(picturesOf(test::sample(u"tone.wav"_s), out.path()).paths.empty());
    EXPECT_TRUE(picturesOf(test::sample(u"profiled.png"_s), out.path()).paths.empty());
    EXPECT_TRUE(out.names().isEmpty());
    const JobResult none = makeInProcessRunner()->run(
        {ExtractionRequest{u"/none.jpg"_s, out.path(), ExtractionRequest::Kind::Pictures}, {}});
    EXPECT_FALSE(none);
}

TEST(PictureExtraction, SavesTheThumbnailsOfHeifAsPng)
{
    const test::TestFolder folder;
    folder.write(u"out/x"_s);
    const QByteArray photo = test::heif(heif_compression_HEVC, {640, 480}, {}, {}, 160);
    const SavedFiles saved = picturesOf(folder.write(u"a.heic"_s, photo), folder / u"out"_s);
    EXPECT_TRUE(saved.problems.empty());
    ASSERT_EQ(saved.paths, std::vector<QString>{folder / u"out/a #1.png"_s});
    EXPECT_EQ(QImage(saved.paths.front(), "PNG").size(), QSize(160, 120));

    const QString bare = folder.write(u"bare.heic"_s, test::heif(heif_compression_HEVC));
    EXPECT_TRUE(picturesOf(bare, folder / u"out"_s).paths.empty()) << "the picture itself is no thumbnail";
}

TEST(PictureExtraction, StaysInTheFolderWhateverANameSays)
{
    const test::TestFolder folder;
    folder.write(u"in/x"_s);
    AttachmentFiles files(folder / u"in"_s, u"picture"_s);
    files.addFile(u"../../up.jpg"_s, "1");
    files.addFile(u"/etc/passwd"_s, "2");
    files.addFile(u".."_s, "3");
    files.addFile(u"base.jpg"_s, "base64:AAAA");
    files.addFile(u"none.jpg"_s, "");
    files.addProblem(u"bad.jpg"_s, u"why"_s);
    const SavedFiles saved = files.finish();
    EXPECT_EQ(saved.paths,
              (std::vector<QString>{folder / u"in/up.jpg"_s, folder / u"in/passwd"_s,
                                    folder / u"in/attachment"_s, folder / u"in/base.jpg"_s}));
    EXPECT_EQ(test::contentOf(folder / u"in/base.jpg"_s), "base64:AAAA") << "bytes are no text";
    EXPECT_EQ(saved.problems, std::vector<QString>{u"picture bad.jpg: why"_s});
}

} // namespace quorvin
