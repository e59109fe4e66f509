// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectChanges.h"

#include "platform/NativePath.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace quorvin {

using namespace Qt::StringLiterals;
using test::TestFolder;

namespace {

/// The folder's files a to d, as they are now.
class KeptFolder {
public:
    explicit KeptFolder(bool withDigests)
    {
        for (const QString &name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
            _project.files.push_back({_folder.write(u"in/"_s + name, "12345"), 1, {}});
        _folder.write(u"in/other"_s);
        keepFacts(_project, withDigests);
    }

    QString pathOf(const QString &name) const { return _folder / (u"in/"_s + name); }
    Project &project() { return _project; }

    /// "changed a (size modified)" and so on.
    QStringList changes(DigestCheck check = DigestCheck::All) const
    {
        QStringList lines;
        const ProjectChanges found = changesSince(_project, check);
        EXPECT_TRUE(found.problems.empty());
        for (const FileChange &change : found.changes) {
            QString line = change.kind == FileChange::Changed ? u"changed "_s
                : change.kind == FileChange::Vanished         ? u"vanished "_s
                                                              : u"new "_s;
            line += lastPathComponent(change.path);
            for (const auto &[fact, word] :
                 {std::pair(ChangedFact::Size, u" size"_s), std::pair(ChangedFact::Modified, u" modified"_s),
                  std::pair(ChangedFact::Content, u" content"_s)}) {
                if (change.facts.testFlag(fact))
                    line += word;
            }
            lines.append(line);
        }
        return lines;
    }

    /// Other bytes in the very same file; the date is put back unless it is to move on.
    void rewrite(const QString &name, const QByteArray &content, bool keepsDate) const
    {
        struct stat before { };
        ASSERT_EQ(::stat(encodePath(pathOf(name)).constData(), &before), 0);
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
        file.write(content);
        file.close();
        timespec changed = before.st_mtim;
        changed.tv_sec += keepsDate ? 0 : 1;
        const timespec times[] = {before.st_atim, changed};
        ASSERT_EQ(::utimensat(AT_FDCWD, encodePath(pathOf(name)).constData(), times, 0), 0);
    }

private:
    TestFolder _folder;
    Project _project;
};

} // namespace

TEST(ProjectChanges, TellWhatChangedVanishedAndIsNew)
{
    const KeptFolder kept(false);
    EXPECT_EQ(kept.changes(), QStringList());
    kept.rewrite(u"a"_s, "123456", true);
    kept.rewrite(u"b"_s, "54321", false);
    ASSERT_TRUE(QFile::remove(kept.pathOf(u"c"_s)) && QDir().mkdir(kept.pathOf(u"c"_s)));
    ASSERT_TRUE(QFile::remove(kept.pathOf(u"d"_s)));
    for (const QString &name : {u"10"_s, u"9"_s, u".DS_Store"_s, u"p.quorvinproj"_s, u"c/below"_s}) {
        QFile file(kept.pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(kept.changes(),
              (QStringList{u"changed a size"_s, u"changed b modified"_s, u"vanished c"_s, u"vanished d"_s,
                           u"new 9"_s, u"new 10"_s}));
}

TEST(ProjectChanges, DigestsTellTheContent)
{
    const KeptFolder kept(true);
    kept.rewrite(u"a"_s, "54321", true);
    kept.rewrite(u"b"_s, "54321", false);
    kept.rewrite(u"c"_s, "12345", false);
    // A quick look trusts the dates; a whole one trusts nothing.
    EXPECT_EQ(kept.changes(DigestCheck::Doubtful),
              (QStringList{u"changed b modified content"_s, u"changed c modified"_s}));
    EXPECT_EQ(
        kept.changes(DigestCheck::All),
        (QStringList{u"changed a content"_s, u"changed b modified content"_s, u"changed c modified"_s}));
}

TEST(ProjectChanges, AreOfWhatWasKeptAlone)
{
    KeptFolder kept(false);
    for (ProjectFile &file : kept.project().files)
        file.facts = {};
    kept.project().folders.clear();
    kept.rewrite(u"a"_s, "1", false);
    ASSERT_TRUE(QFile::remove(kept.pathOf(u"d"_s)) && QFile::copy(kept.pathOf(u"a"_s), kept.pathOf(u"e"_s)));
    EXPECT_EQ(kept.changes(), QStringList{u"vanished d"_s});
    // What cannot be read has no facts to keep.
    keepFacts(kept.project(), true);
    EXPECT_EQ(kept.project().files[3].facts, KeptFacts());
    EXPECT_EQ(kept.changes(), QStringList{u"vanished d"_s});
}

TEST(ProjectChanges, EndWhenTheyAreStopped)
{
    KeptFolder kept(true);
    kept.rewrite(u"a"_s, "1", false);
    ASSERT_TRUE(QFile::remove(kept.pathOf(u"d"_s)));
    std::stop_source source;
    const auto found = changesSince(kept.project(), DigestCheck::All, source.get_token(),
                                    [&](std::size_t done, std::size_t total) {
                                        EXPECT_EQ(total, 4U);
                                        if (done == 1)
                                            source.request_stop();
                                    });
    ASSERT_EQ(found.changes.size(), 1U);
    EXPECT_EQ(found.changes[0].path, kept.pathOf(u"a"_s));
}

} // namespace quorvin
