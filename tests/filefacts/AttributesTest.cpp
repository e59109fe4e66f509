// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filefacts/AttributeFacts.h"
#include "filefacts/ExtendedAttributes.h"
#include "platform/RegularFile.h"
#include "support/TestFolder.h"
#include "support/TimeZone.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace quorvin {

using namespace Utilities;

namespace {

constexpr char kWhereFroms[] = "user.com.apple.metadata:kMDItemWhereFroms";
constexpr char kTags[] = "user.com.apple.metadata:_kMDItemUserTags";

QByteArray plist(const QByteArray &content)
{
    return "<?xml version=\"1.0\"?><plist version=\"1.0\">" + content + "</plist>";
}

} // namespace

TEST(Attributes, VocabularyComesBeforeTheDesktop)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a"));
    folder.setAttribute(path, "user.xdg.comment", "desktop");
    folder.setAttribute(path, "user.xdg.tags", "red, blue,");
    folder.setAttribute(path, "user.xdg.origin.url", "https://example.org/");
    folder.setAttribute(path, "user.dublincore.creator", "A. Sample");
    AttributeFacts facts = readAttributeFacts(path);
    EXPECT_EQ(facts.comment, QStringLiteral("desktop"));
    EXPECT_EQ(facts.tags.join(u'|'), QStringLiteral("red|blue"));
    EXPECT_EQ(joinedText(facts.whereFroms), QStringLiteral("https://example.org/"));
    EXPECT_EQ(joinedText(facts.authors), QStringLiteral("A. Sample"));

    folder.setAttribute(path, "user.com.apple.metadata:kMDItemFinderComment", plist("<string>own</string>"));
    folder.setAttribute(path, kTags, plist("<array><string>Green\n2</string></array>"));
    folder.setAttribute(path, kWhereFroms, plist("<array><string>a</string><string>b</string></array>"));
    facts = readAttributeFacts(path);
    EXPECT_EQ(facts.comment, QStringLiteral("own"));
    EXPECT_EQ(facts.tags, QStringList{QStringLiteral("Green")});
    EXPECT_EQ(joinedText(facts.whereFroms), QStringLiteral("a,\nb"));
}

TEST(Attributes, MalformedOnesAreLeftOut)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a"));
    folder.setAttribute(path, kWhereFroms, "bplist00 and then junk");
    folder.setAttribute(path, kTags, QByteArray());
    folder.setAttribute(path, "user.xdg.comment", "\xff\xfe");
    folder.setAttribute(path, "user.com.apple.metadata:kMDItemAuthors", plist("<array/>"));
    folder.setAttribute(path, "user.com.apple.metadata:kMDItemDownloadedDate",
                        plist("<date>2021-03-04T05:06:07Z</date>"));
    const AttributeFacts facts = readAttributeFacts(path);
    EXPECT_EQ(joinedText(facts.whereFroms), std::nullopt);
    EXPECT_EQ(joinedText(facts.authors), std::nullopt);
    EXPECT_EQ(facts.comment, std::nullopt);
    EXPECT_TRUE(facts.tags.isEmpty());
    EXPECT_TRUE(joinedDates(facts.downloadedDate)->startsWith(QStringLiteral("March 4, 2021")));
}

TEST(Attributes, ListAndRemove)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a"));
    EXPECT_EQ(listExtendedAttributesOnFileAtPath(path), QStringList());
    EXPECT_EQ(listExtendedAttributesOnFileAtPath(folder / QStringLiteral("none")).error().code, ENOENT);
    folder.setAttribute(path, "user.xdg.tags", "red");
    EXPECT_EQ(listExtendedAttributesOnFileAtPath(path), QStringList{kDesktopTagsAttribute});
    EXPECT_TRUE(removeExtendedAtrribute(kTagsAttribute, path));
    const auto again = removeExtendedAtrribute(kTagsAttribute, path);
    ASSERT_FALSE(again);
    EXPECT_EQ(again.error().domain, kPosixErrorDomain);
    EXPECT_EQ(again.error().code, ENODATA);
}

TEST(Attributes, RemovalTakesTheOneThatIsShown)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a"));
    folder.setAttribute(path, "user.com.apple.metadata:kMDItemFinderComment", plist("<string>own</string>"));
    folder.setAttribute(path, "user.xdg.comment", "desktop");
    EXPECT_TRUE(removeExtendedAtrribute(kCommentAttribute, path));
    EXPECT_EQ(readAttributeFacts(path).comment, QStringLiteral("desktop"));
    EXPECT_TRUE(removeExtendedAtrribute(kCommentAttribute, path));
    EXPECT_EQ(readAttributeFacts(path).comment, std::nullopt);
    EXPECT_EQ(removeExtendedAtrribute(kCommentAttribute, path).error().code, ENODATA);
    folder.setAttribute(path, kTags, plist("<array><string>Green</string></array>"));
    folder.setAttribute(path, "user.xdg.tags", "red");
    EXPECT_TRUE(removeExtendedAtrribute(kTagsAttribute, path));
    EXPECT_EQ(listExtendedAttributesOnFileAtPath(path), QStringList()) << "of tags both forms";
}

TEST(Attributes, TouchTakesTheZoneInFrontAndBehind)
{
    const test::TestFolder folder;
    const QString path = folder.write(QStringLiteral("a"));
    EXPECT_TRUE(touchDate(QStringLiteral("UTC 2021-03-04 05:06:07"), path));
    EXPECT_EQ(RegularFile::open(path)->modificationTime(), 1'614'834'367'000);
    EXPECT_TRUE(touchDate(QStringLiteral("2021-03-04 05:06:08 UTC"), path));
    EXPECT_EQ(RegularFile::open(path)->modificationTime(), 1'614'834'368'000);
    EXPECT_TRUE(touchDate(QStringLiteral("2021-03-04 05:06:09.123 UTC / 2022-01-01T00:00:00Z UTC"), path));
    EXPECT_EQ(RegularFile::open(path)->modificationTime(), 1'614'834'369'000) << "the first of several";
    {
        const test::TimeZone zone("Europe/Berlin");
        EXPECT_TRUE(touchDate(QStringLiteral("UTC 2021-03-28 02:30:00"), path))
            << "skipped by the clocks there";
        EXPECT_EQ(RegularFile::open(path)->modificationTime(), 1'616'898'600'000);
    }
    for (const char *wrong : {"2021-03-04 05:06:07", "UTC 2021-03-04", "UTC 2021-02-29 00:00:00", "UTC", "",
                              "UTC 2021-03-04 05:06:07 UTC", "UTCx2021-03-04 05:06:07 x"}) {
        const auto refused = touchDate(QLatin1String(wrong), path);
        ASSERT_FALSE(refused) << wrong;
        EXPECT_EQ(refused.error().domain, kErrorDomain);
        EXPECT_EQ(refused.error().code, 1);
    }
    EXPECT_EQ(
        touchDate(QStringLiteral("UTC 2021-03-04 05:06:07"), folder / QStringLiteral("none")).error().domain,
        kPosixErrorDomain);
}

} // namespace quorvin
