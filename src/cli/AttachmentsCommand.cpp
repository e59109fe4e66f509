// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/AttachmentsCommand.h"

#include "cli/Extraction.h"

namespace quorvin::cli {

using namespace Qt::StringLiterals;

QList<Option> attachmentsOptions()
{
    return {extractionFolderOption(u"Write the files that are attached into DIR."_s)};
}

Expected<void> checkAttachments(const Arguments &arguments)
{
    if (!arguments.outputDir)
        return failure(u"attachments needs -d DIR"_s);
    return {};
}

Status runAttachments(const Context &context)
{
    return runExtraction(context, ExtractionRequest::Kind::Attachments);
}

} // namespace quorvin::cli
