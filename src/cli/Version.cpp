// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Version.h"

#include "model/Version.h"
#include "process/Guard.h"
#include "process/ReaderRunner.h"
#include "readers/image/oEXIV2.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <QProcess>

namespace quorvin::cli {

namespace {

using namespace Qt::StringLiterals;

constexpr int kExiftoolPatience = 10'000; ///< milliseconds

QString exiftoolVersion()
{
    QProcess exiftool;
    exiftool.start(u"exiftool"_s, {u"-ver"_s});
    if (!exiftool.waitForFinished(kExiftoolPatience) || exiftool.exitCode() != 0)
        return u"not installed"_s;
    return u'v' + QString::fromUtf8(exiftool.readAllStandardOutput()).trimmed();
}

QString readerGuard()
{
    const auto parts = guardPartsInForce();
    if (!parts)
        return u"not available"_s;
    const QString missing = missingGuardNames(*parts);
    return u"processes of their own, guarded by "_s + guardNames(*parts)
        + (missing.isEmpty() ? QString() : u", without "_s + missing);
}

} // namespace

QString versionText()
{
    const QStringList lines{
        u"quorvin-cli "_s + programVersion(),    oMediaInfo::libVersion(),
        u"Exiv2 - v"_s + oEXIV2::libVersion(),   u"libheif - v"_s + oEXIV2::heifVersion(),
        u"Qt - v"_s + QLatin1String(qVersion()), u"exiftool - "_s + exiftoolVersion(),
        u"readers: "_s + readerGuard(),
    };
    return lines.join(u'\n') + u'\n';
}

} // namespace quorvin::cli
