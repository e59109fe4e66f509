// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/MetadataRemover.h"

#include "filefacts/FileHash.h"
#include "filefacts/Paths.h"
#include "platform/LinkTarget.h"
#include "platform/NativePath.h"
#include "platform/RegularFile.h"
#include "process/ReaderRunner.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace quorvin {

namespace {

constexpr char kChangedMeanwhile[] = QT_TRANSLATE_NOOP("MetadataRemover", "the file was changed meanwhile");

QString removerText(const char *words)
{
    return QCoreApplication::translate("MetadataRemover", words);
}

bool isTheSame(const struct stat &a, const struct stat &b)
{
    return a.st_ino == b.st_ino && a.st_dev == b.st_dev && a.st_size == b.st_size
        && a.st_mtim.tv_sec == b.st_mtim.tv_sec && a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

/// Whether a file may be replaced: as a rename would do it, whatever its mode.
Expected<void> checkReplaceable(const QByteArray &path, const struct stat &facts, bool allowsHardLinks)
{
    if (::faccessat(AT_FDCWD, path.constData(), W_OK, AT_EACCESS) != 0)
        return posixFailure(errno);
    if (facts.st_nlink > 1 && !allowsHardLinks)
        return failure(removerText("the file has several names (hard links)"));
    return {};
}

Expected<QString> digestOf(const RegularFile &file)
{
    return FileHash::hashesOfFile(file.descriptor(), {FileHash::Digest::SHA256})
        .map([](const QStringList &hashes) { return hashes.first(); });
}

} // namespace

MetadataRemover::MetadataRemover(const oEXIV2Metadata &options, const JobLimits &limits,
                                 std::unique_ptr<JobRunner> reader)
    : _options(options), _limits(limits), _reader(std::move(reader))
{
}

Expected<RemovalResult> MetadataRemover::run(JobRunner &runner, RemovalRequest request,
                                             const std::stop_token &stop) const
{
    return runner.run(Job{std::move(request), _limits}, stop).map([](JobAnswer answer) {
        return std::get<RemovalResult>(std::move(answer));
    });
}

RemovalReceipt MetadataRemover::receiptOfPlan(const QString &path, const std::stop_token &stop)
{
    RemovalReceipt receipt{.path = path};
    if (auto result = run(*_reader, {path, {}, _options}, stop))
        receipt.result = *std::move(result);
    else
        receipt.failure = result.error().description;
    return receipt;
}

RemovalReceipt MetadataRemover::planned(const Order &order, const std::stop_token &stop)
{
    RemovalReceipt receipt = receiptOfPlan(order.path, stop);
    if (!order.target.isEmpty() || receipt.result.removed.empty())
        return receipt;
    const QByteArray real = LinkTarget::of(encodePath(order.path)).path;
    struct stat facts { };
    const auto allowed = ::stat(real.constData(), &facts) == 0
        ? checkReplaceable(real, facts, order.allowsHardLinks)
        : Expected<void>(posixFailure(errno));
    if (!allowed)
        return {.path = order.path, .failure = allowed.error().description};
    return receipt;
}

RemovalReceipt MetadataRemover::remove(const Order &order, const std::stop_token &stop)
{
    RemovalReceipt receipt = receiptOfPlan(order.path, stop);
    const bool isInPlace = order.target.isEmpty();
    if (!receipt.failure.isEmpty() || (isInPlace && receipt.result.removed.empty()))
        return receipt;
    if (const auto rewritten = rewrite(order, receipt, stop); !rewritten) {
        receipt = {.path = order.path};
        receipt.failure = rewritten.error().description;
    }
    if (_folder)
        _folder->discard();
    return receipt;
}

Expected<void> MetadataRemover::workIn(const QString &folder)
{
    if (_folder && _folder->parent() == folder)
        return {};
    _writer.reset();
    _folder.reset();
    return Utilities::createFolder(folder)
        .and_then(WorkFolder::create)
        .map([&](std::unique_ptr<WorkFolder> made) {
            _folder = std::move(made);
            _writer = makeWriterRunner(_folder->path());
        });
}

Expected<void> MetadataRemover::rewrite(const Order &order, RemovalReceipt &receipt,
                                        const std::stop_token &stop)
{
    const QString real = decodePath(LinkTarget::of(encodePath(order.path)).path);
    const bool isInPlace = order.target.isEmpty();
    const auto file = RegularFile::open(real);
    if (!file)
        return tl::unexpected(file.error());
    struct stat before { };
    ::fstat(file->descriptor(), &before);
    if (isInPlace) {
        if (auto allowed = checkReplaceable(encodePath(real), before, order.allowsHardLinks); !allowed)
            return allowed;
    }
    const QString target = isInPlace ? real : order.target;
    if (auto made
        = workIn(QFileInfo(target).path()).and_then([&] { return writeCopy(*file, receipt, stop); });
        !made)
        return made;
    struct stat now { };
    if (::stat(encodePath(real).constData(), &now) != 0 || !isTheSame(before, now))
        return failure(removerText(kChangedMeanwhile));
    return _folder
        ->publish(
            {.target = target, .rightsOf = real, .keepsTimes = order.keepsTimes, .isUnique = !isInPlace})
        .map([&](const QString &path) { receipt.target = isInPlace ? QString() : path; });
}

/// The file without what goes.
Expected<void> MetadataRemover::removeInto(const QString &path, RemovalReceipt &receipt,
                                           const std::stop_token &stop)
{
    const auto remove = [&] { return run(*_writer, {path, _folder->copy(), _options}, stop); };
    auto result = _folder->makeEmpty().and_then(remove);
    if (!result)
        return tl::unexpected(result.error());
    // Then nothing was written.
    if (result->removed.empty())
        return failure(removerText(kChangedMeanwhile));
    receipt.result = *std::move(result);
    return {};
}

/// With its digest and that of the file.
Expected<void> MetadataRemover::writeCopy(const RegularFile &file, RemovalReceipt &receipt,
                                          const std::stop_token &stop)
{
    if (auto made = receipt.result.removed.empty() ? _folder->copyFrom(file)
                                                   : removeInto(file.resolvedPath(), receipt, stop);
        !made)
        return made;
    const auto is = RegularFile::open(_folder->copy()).and_then(digestOf);
    const auto was = digestOf(file);
    if (!was || !is)
        return tl::unexpected((was ? is : was).error());
    receipt.digestBefore = *was;
    receipt.digestAfter = *is;
    return {};
}

} // namespace quorvin
