// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/ImageTraces.h"

#include "platform/FileUri.h"
#include "support/TestFolder.h"

#include <QCryptographicHash>
#include <QFile>

#include <gtest/gtest.h>

namespace quorvin {

using namespace Qt::StringLiterals;

TEST(ImageTraces, AreFoundAndClearedAndNothingElse)
{
    const test::TestFolder folder;
    const QByteArray before = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", folder.path().toUtf8());
    const auto thumbnail = [&](const QByteArray &address, const QString &size) {
        const QByteArray digest = QCryptographicHash::hash(address, QCryptographicHash::Md5).toHex();
        return folder.write(u"thumbnails/%1/%2.png"_s.arg(size, QString::fromLatin1(digest)));
    };
    const QString image = folder.write(u"a (1) ü.jpg"_s);
    const QString link = folder / u"link.jpg"_s;
    ASSERT_TRUE(QFile::link(image, link));
    EXPECT_TRUE(tracesOf(image).isEmpty());

    const QByteArray start = "file://" + folder.path().toUtf8() + '/';
    const QStringList ours{thumbnail(start + "a%20(1)%20%C3%BC.jpg", u"normal"_s),
                           thumbnail(fileUri(image), u"x-large"_s),
                           thumbnail(fileUri(image), u"fail/some-program"_s)};
    const QString other = thumbnail(start + "b.jpg", u"normal"_s);
    folder.setAttribute(image, "user.xdg.origin.url", "https://example.org/a");
    folder.setAttribute(image, "user.xdg.referrer.url", "https://example.org");
    folder.setAttribute(image, "user.xdg.comment", "mine");

    QStringList found = tracesOf(link).thumbnails;
    found.sort();
    QStringList expected = ours;
    expected.sort();
    EXPECT_EQ(found, expected);
    EXPECT_EQ(tracesOf(image).attributes.size(), 2);
    EXPECT_TRUE(clearTraces(link));
    EXPECT_TRUE(tracesOf(image).isEmpty());
    EXPECT_TRUE(QFile::exists(other));
    EXPECT_EQ(test::contentOf(image), "x");
    if (before.isEmpty())
        qunsetenv("XDG_CACHE_HOME");
    else
        qputenv("XDG_CACHE_HOME", before);
}

} // namespace quorvin
