// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/preferences/LibraryVersions.h"

#include "readers/image/oEXIV2.h"
#include "readers/mediainfo/oMediaInfo.h"
#include "shell/desktop/BackgroundRun.h"

#include <QProcess>

#include <utility>

namespace quorvin {

namespace {

constexpr int kPatienceMilliseconds = 10'000;

QString exiftoolVersion()
{
    QProcess exiftool;
    exiftool.start(QStringLiteral("exiftool"), {QStringLiteral("-ver")});
    if (!exiftool.waitForFinished(kPatienceMilliseconds) || exiftool.exitCode() != 0)
        return {};
    return QString::fromUtf8(exiftool.readAllStandardOutput()).trimmed();
}

QString versionsText()
{
    QString text = oMediaInfo::libVersion();
    if (const QString version = exiftoolVersion(); !version.isEmpty())
        text = QStringLiteral("%1, exiftool - v%2").arg(text, version);
    return text
        + QStringLiteral("\nExiv2 - v%1, libheif - v%2, Qt - v%3")
              .arg(oEXIV2::libVersion(), oEXIV2::heifVersion(), QLatin1String(qVersion()));
}

} // namespace

LibraryVersions::LibraryVersions(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setText(tr("Asking…"));
}

void LibraryVersions::ask()
{
    if (!std::exchange(_wasAsked, true))
        runInBackground(
            this, "Versions", [](const RunControl &) { return versionsText(); },
            [this](const QString &text) { setText(text); });
}

} // namespace quorvin
