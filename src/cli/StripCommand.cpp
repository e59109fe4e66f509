// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/StripCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "surgery/RemovalLanes.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// A copy goes below the folder as the list shows its file below its own.
MetadataRemover::Order orderOf(const Arguments &arguments, const FilelistItem &file)
{
    return {.path = file.filename(),
            .target = arguments.outputDir ? *arguments.outputDir + u'/' + file.prefixedPath() : QString(),
            .keepsTimes = arguments.keepTimes,
            .allowsHardLinks = arguments.allowHardLinks};
}

/// A line for what was done; the whole receipt for what would be.
QString told(const RemovalReceipt &receipt, bool isPlan)
{
    const QString all = receiptsAsText(std::span(&receipt, 1), isPlan);
    return isPlan ? all : all.left(all.indexOf(u'\n') + 1);
}

} // namespace

QList<Option> stripOptions()
{
    return {
        filterOption(),
        {.names = {u"exif"_s},
         .description = u"Remove what Exif tells of the picture; its structure stays."_s,
         .take = put<&Arguments::stripExif>},
        {.names = {u"makernote"_s},
         .description = u"Remove the notes of the camera's maker; not from raw files, which need them."_s,
         .take = put<&Arguments::stripMakernote>},
        {.names = {u"gps"_s}, .description = u"Remove the position."_s, .take = put<&Arguments::stripGps>},
        {.names = {u"iptc"_s}, .description = u"Remove all IPTC."_s, .take = put<&Arguments::stripIptc>},
        {.names = {u"xmp"_s}, .description = u"Remove all XMP."_s, .take = put<&Arguments::stripXmp>},
        {.names = {u"dry-run"_s},
         .description = u"Only tell what would go, and what would stay and why."_s,
         .take = put<&Arguments::dryRun>},
        {.names = {u"d"_s, u"output-dir"_s},
         .description = u"Leave the files as they are, and write copies into this folder, as in theirs."_s,
         .valueName = u"DIR"_s,
         .take = put<&Arguments::outputDir>},
        {.names = {u"keep-mtime"_s},
         .description = u"Keep the dates of access and modification."_s,
         .take = put<&Arguments::keepTimes>},
        {.names = {u"allow-hard-links"_s},
         .description = u"Also rewrite files of several names; what the others lead to stays as it is."_s,
         .take = put<&Arguments::allowHardLinks>},
        {.names = {u"receipt"_s},
         .description = u"Write what was removed and kept, with digests, to FILE; *.json is JSON."_s,
         .valueName = u"FILE"_s,
         .take = put<&Arguments::receipt>},
    };
}

Expected<void> checkStrip(const Arguments &arguments)
{
    if (!arguments.stripExif && !arguments.stripMakernote && !arguments.stripGps && !arguments.stripIptc
        && !arguments.stripXmp)
        return failure(u"strip takes at least one of --exif, --makernote, --gps, --iptc, --xmp"_s);
    if (arguments.dryRun && arguments.outputDir)
        return failure(u"--dry-run and --output-dir exclude each other"_s);
    return {};
}

Status runStrip(const Context &context)
{
    const Arguments &arguments = context.arguments;
    FileRun run(context);
    const oEXIV2Metadata options{.removeExif = arguments.stripExif,
                                 .removeMakernote = arguments.stripMakernote,
                                 .removeGPS = arguments.stripGps,
                                 .removeIPTC = arguments.stripIptc,
                                 .removeXMP = arguments.stripXmp};
    const auto makeRemover
        = [&] { return std::make_unique<MetadataRemover>(options, run.limits(), run.makeRunner()); };
    const RemovalWork work{.makeRemover = makeRemover,
                           .treat = arguments.dryRun ? &MetadataRemover::planned : &MetadataRemover::remove};
    std::vector<RemovalReceipt> receipts;
    const auto nextOrder = [&]() -> std::optional<MetadataRemover::Order> {
        const FilelistItemPtr file = run.nextWantedFile();
        return file ? std::optional(orderOf(arguments, *file)) : std::nullopt;
    };
    treatFiles(work, nextOrder, [&](RemovalReceipt receipt) {
        if (receipt.failure.isEmpty())
            context.console.write(told(receipt, arguments.dryRun).toUtf8());
        else
            run.fail(receipt.path, receipt.failure);
        if (arguments.receipt)
            receipts.push_back(std::move(receipt));
    });
    if (arguments.receipt) {
        if (const auto written = writeReceipts(*arguments.receipt, receipts, arguments.dryRun); !written)
            run.fail(*arguments.receipt, written.error().description);
    }
    return run.finish(true);
}

} // namespace quorvin::cli
