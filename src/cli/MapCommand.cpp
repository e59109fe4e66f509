// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/MapCommand.h"

#include "cli/Console.h"
#include "cli/Document.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"
#include "places/PlaceWriter.h"

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

/// The files of a call that are not in its document, although they could be read.
struct Unplaced {
    qint64 without = 0; ///< a position
    qint64 impossible = 0;
};

Expected<void> writePlaces(FileRun &run, Console &console, QIODevice &device, PlaceWriter &writer,
                           Unplaced &unplaced)
{
    console.beginOutput(device);
    writer.begin();
    auto written = PlaceWriter::Result();
    while (written) {
        const auto entry = run.nextEntry();
        if (!entry)
            break;
        const auto file = placedFile(entry->filename, *entry->data);
        console.beginOutput(device);
        if (file)
            written = writer.add(*file);
        else
            ++unplaced.without;
    }
    unplaced.impossible = writer.impossible();
    return written ? writer.finish() : written;
}

/// "" when all files are in the document.
QString unplacedText(const Unplaced &unplaced)
{
    QStringList parts;
    if (unplaced.without > 0)
        parts.append(u"%1 without a position"_s.arg(unplaced.without));
    if (unplaced.impossible > 0)
        parts.append(u"%1 with an impossible one"_s.arg(unplaced.impossible));
    return parts.isEmpty() ? QString() : u"not on the map: "_s + parts.join(", "_L1);
}

} // namespace

QList<Option> mapOptions()
{
    const QStringList formats = placeFormats();
    return {
        formatOption(u"Format"_s, formats, formats.front()),
        outputOption(),
        {.names = {u"skip-private"_s},
         .description = u"Leave out names and paths; positions and dates stay."_s,
         .take = put<&Arguments::skipPrivate>},
        forceOption(),
        filterOption(),
    };
}

Status runMap(const Context &context)
{
    const Arguments &arguments = context.arguments;
    FileRun run(context);
    const Document document(context);
    if (!document.isAllowed(arguments.format, run.filelist()))
        return WrongCall;
    Unplaced unplaced;
    const bool isWritten = document.write([&](QIODevice &device) {
        PlaceWriter writer(arguments.format, device, arguments.skipPrivate);
        return writePlaces(run, context.console, device, writer, unplaced);
    });
    if (!isWritten)
        return SomethingFailed;
    const Status status = run.finish(!document.isOutput());
    if (const QString note = unplacedText(unplaced); !note.isEmpty())
        context.console.complain(note);
    return status;
}

} // namespace quorvin::cli
