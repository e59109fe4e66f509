// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/FactKeeping.h"

#include "filefacts/FileHash.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"

#include <QSet>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <map>
#include <memory>
#include <string_view>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

FileTime fileTimeOf(const statx_timestamp &time)
{
    return {time.tv_sec, static_cast<qint32>(time.tv_nsec)};
}

struct ListingCloser {
    void operator()(DIR *listing) const { ::closedir(listing); }
};

bool isListedFile(DIR *listing, const dirent &entry)
{
    if (entry.d_type == DT_DIR)
        return false;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN)
        return true;
    struct stat facts { };
    return ::fstatat(::dirfd(listing), entry.d_name, &facts, 0) != 0 || !S_ISDIR(facts.st_mode);
}

/// The files of the project by their folders, which stand in the order of their paths.
std::map<QString, QSet<QString>> namesByFolder(const std::vector<ProjectFile> &files)
{
    std::map<QString, QSet<QString>> names;
    for (const ProjectFile &file : files)
        names[withoutLastPathComponent(file.path)].insert(lastPathComponent(file.path));
    return names;
}

} // namespace

Expected<KeptFacts> statFacts(const QString &path)
{
    struct statx facts { };
    if (::statx(AT_FDCWD, encodePath(path).constData(), 0, STATX_BASIC_STATS | STATX_BTIME, &facts) != 0)
        return posixFailure(errno);
    if (!S_ISREG(facts.stx_mode))
        return failure(S_ISDIR(facts.stx_mode) ? u"Is a folder"_s : u"Is no regular file"_s);
    KeptFacts kept;
    kept.size = facts.stx_size;
    kept.modified = fileTimeOf(facts.stx_mtime);
    if (facts.stx_mask & STATX_BTIME)
        kept.created = fileTimeOf(facts.stx_btime);
    return kept;
}

Expected<QString> digestForProject(const QString &path, const std::stop_token &stop)
{
    const auto goesOn = [&](const DigestProgress &) { return !stop.stop_requested(); };
    return RegularFile::open(path)
        .and_then([&](const RegularFile &file) {
            return FileHash::hashesOfFile(file.descriptor(), {FileHash::Digest::SHA1}, goesOn);
        })
        .map([](const QStringList &digests) { return digests.first(); });
}

Expected<QStringList> fileNamesIn(const QString &folder)
{
    const std::unique_ptr<DIR, ListingCloser> listing(::opendir(encodePath(folder).constData()));
    if (!listing)
        return posixFailure(errno);
    QStringList names;
    errno = 0;
    while (const dirent *entry = ::readdir(listing.get())) {
        const std::string_view name(entry->d_name);
        if (name != ".DS_Store" && isListedFile(listing.get(), *entry)) {
            const QString decoded = decodePath(entry->d_name);
            if (!isProjectPath(decoded))
                names.append(decoded);
        }
        errno = 0;
    }
    if (errno != 0)
        return posixFailure(errno);
    return names;
}

void keepFacts(Project &project, bool withDigests, const std::stop_token &stop, const FilesProgress &progress)
{
    std::size_t done = 0;
    for (ProjectFile &file : project.files) {
        if (stop.stop_requested())
            return;
        if (progress)
            progress(done++, project.files.size());
        file.facts = statFacts(file.path).value_or(KeptFacts());
        if (withDigests && file.facts.size)
            file.facts.sha1 = digestForProject(file.path, stop).value_or(QString());
    }
    project.folders.clear();
    for (const auto &[folder, own] : namesByFolder(project.files)) {
        if (stop.stop_requested())
            return;
        const auto names = fileNamesIn(folder);
        if (!names)
            continue;
        QStringList others;
        for (const QString &name : *names) {
            if (!own.contains(name))
                others.append(name);
        }
        others.sort();
        if (others.size() <= kMostOthers)
            project.folders.push_back({folder, others});
    }
}

} // namespace quorvin
