// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/Icons.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QImage>
#include <QScopeGuard>

#include <gtest/gtest.h>

namespace quorvin {

using namespace test;

namespace {

using namespace Qt::StringLiterals;

void writeIcon(const QString &folder, const QString &name, int side)
{
    QDir().mkpath(folder);
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(folder + u'/' + name + u".png"_s));
}

} // namespace

TEST(Icons, OfCommandsComeFromTheThemeAsItIsWhenTheyAreSeen)
{
    const TestFolder folder;
    const QString theme = folder / u"little"_s;
    writeIcon(theme + u"/16"_s, u"quorvin-elsewhere"_s, 16);
    writeIcon(theme + u"/16@2"_s, u"quorvin-elsewhere"_s, 32);
    folder.write(u"little/index.theme"_s,
                 "[Icon Theme]\nName=little\nDirectories=16,16@2\n[16]\nSize=16\n[16@2]\nSize=16\nScale=2\n");
    const auto restored = qScopeGuard([name = QIcon::themeName(), paths = QIcon::themeSearchPaths()] {
        QIcon::setThemeSearchPaths(paths);
        QIcon::setThemeName(name);
    });
    const QIcon before = commandIcon(u"quorvin-elsewhere"_s);
    QIcon::setThemeSearchPaths({folder.path()});
    QIcon::setThemeName(u"little"_s);

    EXPECT_EQ(before.pixmap(QSize(16, 16), 1.0).toImage().pixelColor(8, 8), Qt::red);
    EXPECT_EQ(before.pixmap(QSize(16, 16), 2.0).size(), QSize(32, 32));
    EXPECT_EQ(before.pixmap(QSize(16, 16), 2.0).toImage().pixelColor(31, 31), Qt::red);
    EXPECT_TRUE(commandIcon(u"quorvin-nowhere"_s).isNull());
}

} // namespace quorvin
