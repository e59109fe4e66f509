// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ComparePairs.h"

#include "cli/Console.h"
#include "cli/Document.h"
#include "cli/FilePairs.h"
#include "cli/FileRun.h"
#include "comparison/ComparisonPair.h"
#include "export/OutputBuffer.h"
#include "intake/FilelistFiller.h"
#include "platform/NativePath.h"

#include <sys/stat.h>

#include <cerrno>
#include <utility>
#include <vector>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

QString differencesText(const ComparisonPair &pair)
{
    QStringList parts;
    for (const auto &[what, names] :
         {std::pair("lost: "_L1, &pair.lost), {"added: "_L1, &pair.added}, {"changed: "_L1, &pair.changed}}) {
        if (!names->isEmpty())
            parts.append(what + names->join(", "_L1));
    }
    return parts.isEmpty() ? u"equal"_s : parts.join("; "_L1);
}

QByteArray nameOf(const FilelistItemPtr &file)
{
    return file ? encodePath(file->prefixedPath()) : QByteArrayLiteral("-");
}

/// The files to read: both of each pair, one behind the other.
std::vector<FilelistItemPtr> filesOf(const std::vector<FilePair> &pairs)
{
    std::vector<FilelistItemPtr> files;
    for (const FilePair &pair : pairs) {
        if (pair.first && pair.second)
            files.insert(files.end(), {pair.first, pair.second});
    }
    return files;
}

/// Two folders, walked and paired.
class FolderPair {
public:
    explicit FolderPair(const Context &context)
        : _context(context),
          _first(FilelistFiller::fillerWithSourceArray(context.paths.first(1))),
          _second(FilelistFiller::fillerWithSourceArray(context.paths.last(1))),
          _pairs(filePairs(_first.filelist(), _second.filelist())),
          _run(context, filesOf(_pairs))
    {
        for (const FilelistFiller *walk : {&_first, &_second}) {
            for (const auto &problem : walk->problems())
                _run.fail(problem.path, problem.reason);
        }
    }

    std::vector<FilelistItemPtr> inputs() const
    {
        std::vector<FilelistItemPtr> files = _first.filelist();
        files.insert(files.end(), _second.filelist().begin(), _second.filelist().end());
        return files;
    }

    Expected<void> write(QIODevice &device)
    {
        OutputBuffer out(device);
        for (const FilePair &pair : _pairs) {
            const QString text = textOf(pair);
            if (text.isEmpty())
                continue;
            _context.console.beginOutput(device);
            out.put(nameOf(pair.first) + '\t' + nameOf(pair.second) + '\t' + text.toUtf8() + '\n');
            if (device.isSequential())
                out.flush();
        }
        return out.flush();
    }

    Status finish()
    {
        const Status status = _run.finish(true);
        return status == AllWell && _differ ? Differing : status;
    }

private:
    /// "" for a pair that nobody wants to hear of.
    QString textOf(const FilePair &pair)
    {
        if (!pair.first || !pair.second) {
            _differ = true;
            return "only in "_L1 + _context.paths[pair.first ? 0 : 1];
        }
        const auto first = nextRecord();
        const auto second = nextRecord();
        if (!first || !second)
            return u"not compared"_s;
        const ComparisonPair compared = comparedPair(*first, *second);
        _differ = _differ || !compared.areEqual();
        const bool isWanted = !compared.areEqual() || !_context.arguments.onlyDiffering;
        return isWanted ? differencesText(compared) : QString();
    }

    /// Null for a file that could not be read, which is told.
    QuorvinDataPtr nextRecord()
    {
        const auto result = _run.nextRecord();
        if (result && result->record)
            return *result->record;
        if (result)
            _run.fail(result->file->filename(), result->record.error().description);
        return nullptr;
    }

    const Context &_context;
    FilelistFiller _first;
    FilelistFiller _second;
    std::vector<FilePair> _pairs;
    FileRun _run;
    bool _differ = false;
};

/// What is wrong with the paths of the call, which is told; `AllWell` when nothing is.
Status checkFolders(const Context &context)
{
    Status status = AllWell;
    if (context.paths.size() != 2) {
        context.console.refuse(u"--pair takes two folders"_s);
        return WrongCall;
    }
    for (const QString &path : context.paths) {
        struct stat facts { };
        if (::stat(encodePath(path).constData(), &facts) != 0) {
            context.console.complain(path, posixFailure(errno).value().description);
            status = SomethingFailed;
        } else if (!S_ISDIR(facts.st_mode)) {
            context.console.refuse(path + " is no folder; --pair takes two"_L1);
            return WrongCall;
        }
    }
    return status;
}

} // namespace

Status comparePairs(const Context &context)
{
    if (const Status wrong = checkFolders(context); wrong != AllWell)
        return wrong;
    FolderPair folders(context);
    const Document document(context);
    if (!document.isAllowed(u"txt"_s, folders.inputs()))
        return WrongCall;
    const bool written = document.write([&](QIODevice &device) { return folders.write(device); });
    return written ? folders.finish() : SomethingFailed;
}

} // namespace quorvin::cli
