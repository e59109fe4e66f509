// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/Counts.h"

#include <QCoreApplication>
#include <QLocale>

namespace quorvin {

QString groupedCount(qint64 count)
{
    QLocale locale;
    // The plain locale leaves the separators out.
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::NumberOptions(QLocale::OmitGroupSeparator));
    return locale.toString(count);
}

QString countOfFiles(qint64 count)
{
    if (count == 1)
        return QCoreApplication::translate("Counts", "1 file");
    return QCoreApplication::translate("Counts", "%1 files").arg(groupedCount(count));
}

} // namespace quorvin
