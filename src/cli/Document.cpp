// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Document.h"

#include "cli/Console.h"
#include "cli/Output.h"
#include "platform/AtomicFile.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

bool Document::isAllowed(const QString &extension, const std::vector<FilelistItemPtr> &inputs) const
{
    const Arguments &arguments = _context.arguments;
    if (placeOf(arguments.output) != Place::File)
        return true;
    const auto allowed = checkOutputFile(*arguments.output, extension, arguments.force, inputs);
    if (!allowed)
        _context.console.refuse(allowed.error().description);
    return allowed.has_value();
}

bool Document::write(const std::function<Expected<void>(QIODevice &device)> &make) const
{
    const Place place = placeOf(_context.arguments.output);
    const auto written = place == Place::File ? writeWhole(*_context.arguments.output, make)
        : place == Place::Errors              ? make(_context.console.errors())
                                              : make(_context.console.output());
    if (!written)
        _context.console.complain(isOutput() ? u"standard output"_s : *_context.arguments.output,
                                  written.error().description);
    return written.has_value();
}

bool Document::isOutput() const
{
    return placeOf(_context.arguments.output) == Place::Output;
}

Option formatOption(const QString &what, const QStringList &formats, const QString &usual)
{
    return {.names = {u"f"_s, u"format"_s},
            .description = u"%1: %2 (default: %3)."_s.arg(what, formats.join(", "_L1), usual),
            .valueName = u"FORMAT"_s,
            .choices = formats,
            .take = put<&Arguments::format>};
}

Option outputOption()
{
    return {.names = {u"o"_s, u"output"_s},
            .description = u"Write to this file; - is standard output (the default)."_s,
            .valueName = u"FILE"_s,
            .take = put<&Arguments::output>};
}

Option forceOption()
{
    return {.names = {u"force"_s},
            .description = u"Let -o replace a file of another kind; never one that is read."_s,
            .take = put<&Arguments::force>};
}

} // namespace quorvin::cli
