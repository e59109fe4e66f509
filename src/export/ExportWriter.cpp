// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportWriter.h"

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

struct Format {
    QLatin1String key;
    std::unique_ptr<ExportWriter> (*make)(QIODevice &device, bool skipFilePrivate);
};

template <typename Writer>
std::unique_ptr<ExportWriter> make(QIODevice &device, bool skipFilePrivate)
{
    return std::make_unique<Writer>(device, skipFilePrivate);
}

constexpr std::array kFormats{
    Format{QLatin1String("txt"), make<TextWriter>},  Format{QLatin1String("html"), make<HtmlWriter>},
    Format{QLatin1String("csv"), make<CsvWriter>},   Format{QLatin1String("xml"), make<XmlWriter>},
    Format{QLatin1String("json"), make<JsonWriter>}, Format{QLatin1String("plist"), make<PlistWriter>},
};

} // namespace

ExportWriter::Result ExportWriter::write(const ExportEntry &entry)
{
    if (std::exchange(_isEmpty, false)) {
        _first = entry;
        return {};
    }
    if (_first) {
        begin(false);
        writeEntry(*_first, true);
        _first.reset();
    }
    writeEntry(entry, false);
    return _out.result();
}

ExportWriter::Result ExportWriter::finish()
{
    if (_first) {
        begin(true);
        writeEntry(*_first, true);
        _first.reset();
    } else if (_isEmpty) {
        begin(false);
    }
    return end().and_then([this] { return flush(); });
}

QStringList exportFormats()
{
    QStringList keys;
    for (const Format &format : kFormats)
        keys.append(format.key);
    return keys;
}

std::unique_ptr<ExportWriter> makeExportWriter(const QString &format, QIODevice &device, bool skipFilePrivate)
{
    const auto found
        = std::ranges::find_if(kFormats, [&](const Format &candidate) { return candidate.key == format; });
    return found == kFormats.end() ? nullptr : found->make(device, skipFilePrivate);
}

} // namespace quorvin
