// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/GeneralCommand.h"

#include "cli/Console.h"
#include "cli/FileRun.h"
#include "cli/FilterOption.h"

#include <utility>

namespace quorvin::cli {

QList<Option> generalOptions()
{
    return {filterOption()};
}

Status runGeneral(const Context &context)
{
    FileRun run(context);
    QString gap;
    while (const auto entry = run.nextEntry()) {
        const QString rule(entry->pathPrefix.size(), u'-');
        const QString block = std::exchange(gap, QStringLiteral("\n")) + entry->pathPrefix + u'\n' + rule
            + u'\n' + entry->data->stringForExportGeneral() + u'\n';
        context.console.write(block.toUtf8());
    }
    return run.finish(true);
}

} // namespace quorvin::cli
