// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/OpenWith.h"

#include "shell/desktop/MapProgram.h"
#include "shell/window/OpenWithMenu.h"
#include "shell/window/StatusLine.h"
#include "support/Events.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// A desktop with these applications for WAV files. What it knows is read once for a process.
struct OpenWith : testing::Test {
    static inline test::TestFolder *folder = nullptr;

    static void SetUpTestSuite()
    {
        folder = new test::TestFolder;
        qputenv("XDG_DATA_HOME", folder->path().toUtf8());
        qputenv("XDG_DATA_DIRS", folder->path().toUtf8() + "/none:/usr/share");
        qputenv("XDG_CONFIG_HOME", folder->path().toUtf8());
        const auto add = [](const QString &id, const QByteArray &name, const QByteArray &command) {
            folder->write(u"applications/"_s + id + u".desktop"_s,
                          "[Desktop Entry]\nType=Application\nName=" + name + "\nExec=" + command
                              + " %f\nMimeType=audio/x-wav;\n");
        };
        add(u"zebra"_s, "Zebra", "true");
        add(u"player"_s, "Player & Co", "true");
        add(u"player-old"_s, "Player & Co", "true");
        add(u"usual"_s, "Usual", "cp -t " + folder->path().toUtf8() + "/out");
        folder->write(u"applications/globe.desktop"_s,
                      "[Desktop Entry]\nType=Application\nName=Globe\nMimeType=x-scheme-handler/geo;\n"
                      "Exec=ln -s %u "
                          + folder->path().toUtf8() + "/out/globe\n");
        folder->write(u"out/there"_s);
        folder->write(u"applications/mimeinfo.cache"_s,
                      "[MIME Cache]\nx-scheme-handler/geo=globe.desktop;\n"
                      "audio/x-wav=zebra.desktop;player.desktop;player-old.desktop;usual.desktop;\n");
        folder->write(u"mimeapps.list"_s, "[Default Applications]\naudio/x-wav=usual.desktop\n");
    }
    static void TearDownTestSuite()
    {
        for (const char *variable : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "XDG_CONFIG_HOME"})
            qunsetenv(variable);
        delete folder;
    }

    static QString texts(const QMenu &menu)
    {
        QStringList all;
        for (const QAction *action : menu.actions())
            all.append(action->isSeparator() ? u"-"_s : action->text());
        return all.join(u'|');
    }
};

} // namespace

TEST_F(OpenWith, MenuHasTheDefaultFirstAndTellsOthersApart)
{
    StatusLine status;
    OpenWithMenu menu(status);
    menu.setFile(u"/a/b.wav"_s);
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(texts(menu), u"Usual (default)|-|Player && Co (player)|Player && Co (player-old)|Zebra"_s);
    const QAction *first = menu.actions().constFirst();
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(menu.actions().constFirst(), first) << "once for a file";
    menu.setFile(u"/a/b.no-such-kind"_s);
    Q_EMIT menu.aboutToShow();
    EXPECT_EQ(texts(menu), u"<None>"_s);
    EXPECT_FALSE(menu.actions().constFirst()->isEnabled());
    menu.setFile(u"/a/b.no-such-kind"_s, u"audio/x-wav"_s);
    Q_EMIT menu.aboutToShow();
    EXPECT_TRUE(texts(menu).startsWith(u"Usual"_s)) << "by what is in it";
}

TEST_F(OpenWith, FilesAreOpenedInTheOneChosen)
{
    const QString path = folder->write(u"odd #%41.wav"_s, "a tone");
    QFile::link(path, *folder / u"link.wav"_s);
    EXPECT_TRUE(openWithApplication(*folder / u"link.wav"_s, u"usual.desktop"_s));
    const QString copy = *folder / u"out/odd #%41.wav"_s;
    EXPECT_TRUE(test::spinUntil([&] { return QFile::exists(copy); })) << "the file behind the link";
    EXPECT_FALSE(openWithApplication(path, u"none.desktop"_s));
}

TEST_F(OpenWith, PlacesAreShownInTheMapProgram)
{
    EXPECT_TRUE(hasMapProgram());
    EXPECT_TRUE(openInMapProgram({46.5197, -6.6323}));
    const QFileInfo link(*folder / u"out/globe"_s);
    EXPECT_TRUE(test::spinUntil([&] { return QFileInfo(link.filePath()).isSymLink(); }));
    EXPECT_TRUE(link.symLinkTarget().endsWith(u"geo:46.5197,-6.6323"_s))
        << link.symLinkTarget().toStdString();
}

} // namespace quorvin
