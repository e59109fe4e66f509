// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectChanges.h"

#include "platform/FileOrder.h"
#include "platform/NativePath.h"

#include <QSet>

#include <cerrno>

namespace quorvin {

namespace {

bool isGone(const Error &error)
{
    return error.domain != kPosixErrorDomain || error.code == ENOENT || error.code == ENOTDIR;
}

ChangedFacts changedFacts(const KeptFacts &then, const KeptFacts &now)
{
    ChangedFacts changed;
    changed.setFlag(ChangedFact::Size, then.size && then.size != now.size);
    changed.setFlag(ChangedFact::Modified, then.modified && then.modified != now.modified);
    return changed;
}

class ChangeSearch {
public:
    ChangeSearch(DigestCheck check, const std::stop_token &stop) : _check(check), _stop(stop) { }

    void lookAt(const ProjectFile &file)
    {
        const auto now = statFacts(file.path);
        if (!now && !isGone(now.error()))
            return complain(file.path, now.error());
        if (!now)
            return _found.changes.push_back({FileChange::Vanished, file.path, {}});
        ChangedFacts changed = changedFacts(file.facts, *now);
        if (isDigestWanted(file.facts, changed)) {
            const auto digest = digestForProject(file.path, _stop);
            if (_stop.stop_requested())
                return;
            if (!digest)
                complain(file.path, digest.error());
            else
                changed.setFlag(ChangedFact::Content, *digest != file.facts.sha1);
        }
        if (changed)
            _found.changes.push_back({FileChange::Changed, file.path, changed});
    }

    void lookForNew(const ProjectFolder &folder, const QSet<QString> &files)
    {
        const auto names = fileNamesIn(folder.path);
        if (!names && !isGone(names.error()))
            return complain(folder.path, names.error());
        const QSet<QString> others(folder.others.begin(), folder.others.end());
        const QString start = folder.path.endsWith(u'/') ? folder.path : folder.path + u'/';
        for (const QString &name : names.value_or(QStringList())) {
            if (!others.contains(name) && !files.contains(start + name))
                _new.push_back(start + name);
        }
    }

    ProjectChanges take()
    {
        for (const std::size_t index : fileBrowserOrder(_new))
            _found.changes.push_back({FileChange::New, _new[index], {}});
        return std::move(_found);
    }

private:
    bool isDigestWanted(const KeptFacts &kept, ChangedFacts changed) const
    {
        const bool isOfInterest = _check == DigestCheck::All || changed.testFlag(ChangedFact::Modified);
        return isOfInterest && !kept.sha1.isEmpty() && !changed.testFlag(ChangedFact::Size);
    }

    void complain(const QString &path, const Error &error)
    {
        _found.problems.push_back({path, error.description});
    }

    DigestCheck _check;
    const std::stop_token &_stop;
    ProjectChanges _found;
    std::vector<QString> _new;
};

} // namespace

ProjectChanges changesSince(const Project &project, DigestCheck check, const std::stop_token &stop,
                            const FilesProgress &progress)
{
    ChangeSearch search(check, stop);
    QSet<QString> files;
    std::size_t done = 0;
    for (const ProjectFile &file : project.files) {
        if (stop.stop_requested())
            return search.take();
        if (progress)
            progress(done++, project.files.size());
        files.insert(file.path);
        search.lookAt(file);
    }
    for (const ProjectFolder &folder : project.folders) {
        if (stop.stop_requested())
            break;
        search.lookForNew(folder, files);
    }
    return search.take();
}

} // namespace quorvin
