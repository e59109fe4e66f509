// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/exiftool/ExifToolUtilities.h"

#include "model/FailureKind.h"
#include "platform/NativePath.h"
#include "process/oExifToolStayOpenProcess.h"
#include "readers/exiftool/ExifToolJson.h"

namespace quorvin {

Expected<QString> ExifToolUtilities::exiftoolOutputForFile(const QString &path,
                                                           oExifToolStayOpenProcess *exifTool)
{
    if (!exifTool)
        return failure(FailureKind::NoExifTool);
    return exifTool->outputWithArguments({"-G1", "-H", "-a", encodePath(path)})
        .map([](const QByteArray &output) { return QString::fromUtf8(output); });
}

Expected<QHash<QString, QString>> ExifToolUtilities::plainTagsOfFile(const QString &path,
                                                                     const QStringList &tags,
                                                                     oExifToolStayOpenProcess *exifTool)
{
    if (!exifTool)
        return failure(FailureKind::NoExifTool);
    QList<QByteArray> arguments{encodePath(path), "-json", "-n"};
    for (const QString &tag : tags)
        arguments.append('-' + tag.toLatin1());
    return exifTool->outputWithArguments(arguments).and_then(rootOfOutput).map([](const Json5Root &root) {
        QHash<QString, QString> values;
        for (const Json5Member &member : root.root->members)
            values.insert(QString::fromUtf8(member.key), textOfJson(member.value));
        return values;
    });
}

} // namespace quorvin
