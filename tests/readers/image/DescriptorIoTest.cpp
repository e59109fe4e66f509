// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/DescriptorIo.h"

#include "platform/RegularFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace quorvin {

namespace {

struct Step {
    int action;
    long count;
};

/// What an io answers to a step, and where it stands then.
std::vector<long> answerOf(Exiv2::BasicIo &io, const Step &step, std::vector<Exiv2::byte> &bytes)
{
    bytes.assign(static_cast<std::size_t>(step.count), 0);
    long answer = 0;
    switch (step.action) {
    case 0:
        answer = io.seek(step.count, Exiv2::BasicIo::beg);
        break;
    case 1:
        answer = io.seek(step.count % 700 - 300, Exiv2::BasicIo::cur) == 0 ? 0 : 1;
        break;
    case 2:
        answer = io.seek(-(step.count % 5000), Exiv2::BasicIo::end);
        break;
    case 3:
        answer = io.getb();
        break;
    case 4:
        answer = io.open();
        break;
    default:
        answer = io.read(bytes.data(), step.count);
    }
    return {answer, io.tell(), io.eof() ? 1 : 0};
}

} // namespace

TEST(DescriptorIo, AnswersAsTheLibrarysOwn)
{
    const test::TestFolder folder;
    QByteArray content;
    for (int i = 0; i < 40'000; ++i)
        content.append(static_cast<char>(i * 7 + i / 251));
    const QString path = folder.write(QStringLiteral("a"), content);
    const auto file = RegularFile::open(path);
    DescriptorIo own(file->descriptor(), file->size(), path.toStdString());
    Exiv2::FileIo theirs(path.toStdString());
    ASSERT_EQ(own.open(), theirs.open());

    std::mt19937 random(1);
    std::vector<Exiv2::byte> ownBytes;
    std::vector<Exiv2::byte> theirBytes;
    for (int i = 0; i < 5000; ++i) {
        const Step step{static_cast<int>(random() % 9), static_cast<long>(random() % (i % 3 ? 60 : 45'000))};
        ASSERT_EQ(answerOf(own, step, ownBytes), answerOf(theirs, step, theirBytes)) << i;
        ASSERT_EQ(ownBytes, theirBytes) << i;
    }
    EXPECT_EQ(QByteArray(reinterpret_cast<const char *>(own.mmap(false)), 40'000), content);
    EXPECT_THROW(own.read(40'001), Exiv2::Error);
}

} // namespace quorvin
