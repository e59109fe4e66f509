// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportFormats.h"

#include "export/CsvWriter.h"
#include "export/HtmlWriter.h"
#include "export/JsonWriter.h"
#include "export/PlistWriter.h"
#include "export/TextWriter.h"
#include "export/XmlWriter.h"

#include <algorithm>
#include <array>

namespace quorvin {

namespace {

using L = QLatin1String;

struct Format {
    QLatin1String key;
    QLatin1String extension;
    std::unique_ptr<ExportWriter> (*make)(QIODevice &device, bool skipFilePrivate);
};

template <typename Writer>
std::unique_ptr<ExportWriter> make(QIODevice &device, bool skipFilePrivate)
{
    return std::make_unique<Writer>(device, skipFilePrivate);
}

constexpr std::array kFormats{
    Format{L("txt"), L("txt"), make<TextWriter>},   Format{L("html"), L("html"), make<HtmlWriter>},
    Format{L("csv"), L("csv"), make<CsvWriter>},    Format{L("xml"), L("xml"), make<XmlWriter>},
    Format{L("json"), L("json"), make<JsonWriter>}, Format{L("plist"), L("plist"), make<PlistWriter>},
};

const Format *formatOf(const QString &key)
{
    const auto *found
        = std::ranges::find_if(kFormats, [&](const Format &candidate) { return candidate.key == key; });
    return found == kFormats.end() ? nullptr : found;
}

} // namespace

QStringList exportFormats()
{
    QStringList keys;
    for (const Format &format : kFormats)
        keys.append(format.key);
    return keys;
}

QString extensionOfFormat(const QString &format)
{
    const Format *row = formatOf(format);
    return row ? QString(row->extension) : QString();
}

std::unique_ptr<ExportWriter> makeExportWriter(const QString &format, QIODevice &device, bool skipFilePrivate)
{
    const Format *row = formatOf(format);
    return row ? row->make(device, skipFilePrivate) : nullptr;
}

} // namespace quorvin
