// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ExtractCommand.h"

#include "cli/Extraction.h"
#include "cli/FilterOption.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

QList<Option> extractOptions()
{
    return {
        filterOption(),
        extractionFolderOption(u"Write covers, thumbnails and previews into DIR; nothing is replaced."_s)};
}

Expected<void> checkExtract(const Arguments &arguments)
{
    if (!arguments.outputDir)
        return failure(u"extract needs -d DIR"_s);
    return {};
}

Status runExtract(const Context &context)
{
    return runExtraction(context, ExtractionRequest::Kind::Pictures);
}

} // namespace quorvin::cli
