// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/GeneralSheet.h"

#include "filefacts/Durations.h"
#include "filefacts/Sizes.h"
#include "intake/FileSum.h"
#include "model/QuorvinData.h"
#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"

#include <QCoreApplication>
#include <QDir>
#include <QStringList>

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::size_t kMostKinds = 8; ///< that are named one by one

struct SheetWords {
    Q_DECLARE_TR_FUNCTIONS(quorvin::GeneralSheet)
};

QString kindsText(const std::vector<FileSum::Kind> &kinds)
{
    if (kinds.size() == 1)
        return kinds.front().name;
    QStringList texts;
    for (std::size_t i = 0; i < std::min(kinds.size(), kMostKinds); ++i)
        texts.append(SheetWords::tr("%1: %2").arg(kinds[i].name, groupedCount(kinds[i].count)));
    if (kinds.size() > kMostKinds)
        texts.append(SheetWords::tr("and %1 other kinds")
                         .arg(groupedCount(static_cast<qint64>(kinds.size() - kMostKinds))));
    return texts.join(u'\n');
}

/// What the files have in common, or that they differ, and how many have any of it where not all do.
QString sharedText(const FileSum::Shared &shared, qint64 records)
{
    QString text = shared.text ? shared.text->plain : SheetWords::tr("differs");
    if (shared.count >= records)
        return text;
    return SheetWords::tr("%1 (in %2 of %3)").arg(text, groupedCount(shared.count), countOfFiles(records));
}

/// In italics where it is no value of any of them.
StyledText sharedValue(const FileSum::Shared &shared, qint64 records)
{
    StyledText value{sharedText(shared, records)};
    if (shared.differs())
        value.italicLength = value.plain.size();
    return value;
}

QString missingText(const FileSum &sum)
{
    QStringList texts;
    if (sum.failed > 0)
        texts.append(SheetWords::tr("%1 failed").arg(groupedCount(sum.failed)));
    if (sum.unread > 0)
        texts.append(SheetWords::tr("%1 not read").arg(groupedCount(sum.unread)));
    return texts.join(QStringLiteral(", "));
}

} // namespace

QString shortFolder(const QString &folder)
{
    const QString home = QDir::homePath();
    if (home.size() > 1 && (folder == home || folder.startsWith(home + u'/')))
        return u'~' + folder.mid(home.size());
    return folder;
}

QStringList factLabels()
{
    return {SheetWords::tr("Kind"),     SheetWords::tr("Format"),     SheetWords::tr("Size"),
            SheetWords::tr("Duration"), SheetWords::tr("Image Size"), SheetWords::tr("Missing"),
            SheetWords::tr("Place")};
}

GeneralSheet sheetOf(const QuorvinData &record, const QString &place)
{
    const GeneralFacts &general = record.generalInfo();
    GeneralSheet sheet{lastPathComponent(record.filename()),
                       shortFolder(withoutLastPathComponent(record.filename())),
                       general.fileUTI.value_or(QString()),
                       {},
                       general.lines};
    const auto add = [&sheet](const QString &label, const QString &value) {
        if (!value.isEmpty())
            sheet.facts.push_back({label, value});
    };
    add(SheetWords::tr("Kind"), general.fileKind.value_or(QString()));
    add(SheetWords::tr("Format"), general.format);
    add(SheetWords::tr("Size"), general.filesize);
    if (!general.duration.isEmpty())
        add(SheetWords::tr("Duration"),
            general.bitrate.isEmpty() ? general.duration
                                      : QStringLiteral("%1 (%2)").arg(general.duration, general.bitrate));
    else if (general.imageSize != QString())
        sheet.facts.push_back({SheetWords::tr("Image Size"), general.imageSizeMP.value_or(QString())});
    if (!place.isEmpty())
        sheet.facts.push_back({.label = SheetWords::tr("Place"), .value = place, .isPlace = true});
    return sheet;
}

GeneralSheet sheetOf(const FileSum &sum, bool useSIUnits)
{
    GeneralSheet sheet{countOfFiles(sum.files), shortFolder(sum.folder), {}, {}, {}};
    const auto add = [&sheet](const QString &label, const QString &value) {
        if (!value.isEmpty())
            sheet.facts.push_back({label, value});
    };
    const auto addShared = [&sheet, &sum](const QString &label, const FileSum::Shared &shared) {
        if (shared.count > 0)
            sheet.facts.push_back({label, sharedText(shared, sum.records()), shared.differs()});
    };
    if (sum.mimeName.count == sum.records() && sum.mimeName.text)
        sheet.mimeName = sum.mimeName.text->plain;
    add(SheetWords::tr("Kind"), kindsText(sum.kinds));
    addShared(SheetWords::tr("Format"), sum.format);
    if (sum.records() > 0)
        add(SheetWords::tr("Size"),
            SheetWords::tr("%1 in all")
                .arg(useSIUnits ? Utilities::filesizeToMacHumanString(sum.bytes)
                                : Utilities::filesizeToBase2HumanString(sum.bytes)));
    if (sum.duration > 0)
        add(SheetWords::tr("Duration"),
            SheetWords::tr("%1 in all").arg(Utilities::formatDurationUpToSeconds(sum.duration)));
    addShared(SheetWords::tr("Image Size"), sum.imageSize);
    add(SheetWords::tr("Missing"), missingText(sum));
    for (const FileSum::Line &line : sum.lines) {
        if (line.value.count > 0)
            sheet.lines.push_back({{}, line.name, sharedValue(line.value, sum.records())});
    }
    return sheet;
}

} // namespace quorvin
