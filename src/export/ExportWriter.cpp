// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/ExportWriter.h"

#include "export/TextWriter.h"

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
    Format{QLatin1String("txt"), make<TextWriter>},
};

} // namespace

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
