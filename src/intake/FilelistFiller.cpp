// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/FilelistFiller.h"

#include "platform/FileOrder.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <utility>

namespace quorvin {

namespace {

constexpr int kEntriesBetween = 500; ///< of a folder, between two reports

/// A folder that is being walked, with the way up from it.
struct Folder {
    dev_t device = 0;
    ino_t inode = 0;
    std::shared_ptr<const Folder> parent;

    bool isItsOwnAncestor() const
    {
        for (const Folder *above = parent.get(); above; above = above->parent.get()) {
            if (above->device == device && above->inode == inode)
                return true;
        }
        return false;
    }
};

/// A folder still to be listed.
struct Pending {
    QString path;
    QString prefix;
    std::shared_ptr<const Folder> parent;
    bool isInsideLink = false; ///< some folder above it was reached by a link
    bool isLink = false;
};

struct DirectoryCloser {
    void operator()(DIR *directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

QString joined(const QString &folder, const QString &name)
{
    if (folder.isEmpty() || folder.endsWith(u'/'))
        return folder + name;
    return folder + u'/' + name;
}

bool isFolder(int at, const char *path)
{
    struct stat facts { };
    return ::fstatat(at, path, &facts, 0) == 0 && S_ISDIR(facts.st_mode);
}

/// The listing tells a folder from a file without a further call, except for links.
bool isFolder(DIR *directory, const dirent &entry)
{
    if (entry.d_type == DT_LNK || entry.d_type == DT_UNKNOWN)
        return isFolder(::dirfd(directory), entry.d_name);
    return entry.d_type == DT_DIR;
}

bool isSymbolicLink(DIR *directory, const dirent &entry)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_LNK;
    struct stat facts { };
    return ::fstatat(::dirfd(directory), entry.d_name, &facts, AT_SYMLINK_NOFOLLOW) == 0
        && S_ISLNK(facts.st_mode);
}

/// One walk: a stack of folders and what came out of them.
class Walk {
public:
    /// `goesOn` is asked now and then, also within a folder, and told the number of files found so far.
    Walk(std::vector<FilelistItemPtr> &files, std::vector<FilelistFiller::Problem> &problems,
         std::function<bool(std::size_t)> goesOn)
        : _files(files), _problems(problems), _goesOn(std::move(goesOn))
    {
    }

    void start(const QString &path, bool isOnlyOne)
    {
        if (path.isEmpty())
            return complain(path, ENOENT);
        const QString name = lastPathComponent(path);
        if (isFolder(AT_FDCWD, encodePath(path).constData()))
            _pending.push_back({path, isOnlyOne ? QString() : name, nullptr, false, false});
        else
            _files.push_back(FilelistItem::itemWithFilename(path, name));
    }

    bool isOver() const { return _pending.empty() && _links.empty(); }

    void listNextFolder()
    {
        const Pending next = takeNext();
        const int descriptor = ::open(encodePath(next.path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        struct stat facts { };
        if (descriptor < 0 || ::fstat(descriptor, &facts) != 0)
            return complain(next.path, errno);
        const Directory directory(::fdopendir(descriptor));
        const auto folder = std::make_shared<const Folder>(Folder{facts.st_dev, facts.st_ino, next.parent});
        const bool isNew = _entered.emplace(facts.st_dev, facts.st_ino).second;
        if (folder->isItsOwnAncestor() || (next.isInsideLink && !isNew))
            return;

        errno = 0;
        int entries = 0;
        while (const dirent *entry = ::readdir(directory.get())) {
            take(directory.get(), *entry, next, folder);
            if (++entries % kEntriesBetween == 0 && !_goesOn(_files.size()))
                return;
            errno = 0;
        }
        if (errno != 0)
            complain(next.path, errno);
    }

private:
    /// Links come last and in an order of their own, so that what is found inside them does not go by the
    /// order in which a disk tells its entries.
    Pending takeNext()
    {
        if (_pending.empty())
            return std::move(_links.extract(_links.begin()).mapped());
        Pending next = std::move(_pending.back());
        _pending.pop_back();
        return next;
    }

    void take(DIR *directory, const dirent &entry, const Pending &parent,
              const std::shared_ptr<const Folder> &folder)
    {
        const std::string_view name(entry.d_name);
        if (name == "." || name == ".." || name == ".DS_Store")
            return;
        const QString decodedName
            = decodePath(QByteArray::fromRawData(entry.d_name, static_cast<qsizetype>(name.size())));
        const QString path = joined(parent.path, decodedName);
        const QString prefixedPath = joined(parent.prefix, decodedName);
        if (!isFolder(directory, entry)) {
            _files.push_back(FilelistItem::itemWithFilename(path, prefixedPath));
            return;
        }
        const bool isLink = isSymbolicLink(directory, entry);
        Pending found{path, prefixedPath, folder, parent.isInsideLink || parent.isLink, isLink};
        if (isLink)
            _links.emplace(path, std::move(found));
        else
            _pending.push_back(std::move(found));
    }

    void complain(const QString &path, int number) { _problems.push_back({path, systemErrorText(number)}); }

    std::vector<FilelistItemPtr> &_files;
    std::vector<FilelistFiller::Problem> &_problems;
    std::function<bool(std::size_t)> _goesOn;
    std::vector<Pending> _pending;
    std::map<QString, Pending> _links; ///< by their paths
    std::set<std::pair<dev_t, ino_t>> _entered;
};

} // namespace

FilelistFiller FilelistFiller::fillerWithSourceArray(const QStringList &paths, const std::stop_token &stop,
                                                     const std::function<void(std::size_t)> &progress)
{
    FilelistFiller filler;
    const auto goesOn = [&](std::size_t found) {
        if (progress)
            progress(found);
        return !stop.stop_requested();
    };
    Walk walk(filler._filelist, filler._problems, goesOn);
    for (const QString &path : paths)
        walk.start(path, paths.size() < 2);
    while (!walk.isOver() && !stop.stop_requested()) {
        walk.listNextFolder();
        goesOn(filler._filelist.size());
    }
    filler.sortFilelistLikeFinder();
    return filler;
}

void FilelistFiller::sortFilelistLikeFinder()
{
    std::vector<QString> names;
    names.reserve(_filelist.size());
    for (const FilelistItemPtr &item : _filelist)
        names.push_back(item->prefixedPath());
    std::vector<FilelistItemPtr> sorted;
    sorted.reserve(_filelist.size());
    for (const std::size_t index : fileBrowserOrder(names))
        sorted.push_back(std::move(_filelist[index]));
    _filelist = std::move(sorted);
}

} // namespace quorvin
