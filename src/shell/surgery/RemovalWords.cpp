// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalWords.h"

#include "shell/desktop/Counts.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace quorvin {

namespace {

QString removalWords(const char *text)
{
    return QCoreApplication::translate("RemovalWords", text);
}

/// One form for one, the other with "%1" for more.
QString counted(std::size_t count, const char *one, const char *more)
{
    return count == 1 ? removalWords(one) : removalWords(more).arg(groupedCount(static_cast<qint64>(count)));
}

struct Outcomes {
    std::size_t changed = 0;
    std::size_t untouched = 0;
    std::size_t failed = 0;
};

Outcomes outcomesOf(std::span<const RemovalReceipt> receipts)
{
    Outcomes outcomes;
    for (const RemovalReceipt &receipt : receipts) {
        if (!receipt.failure.isEmpty())
            ++outcomes.failed;
        else if (receipt.result.removed.empty())
            ++outcomes.untouched;
        else
            ++outcomes.changed;
    }
    return outcomes;
}

} // namespace

QString countOfImages(std::size_t count)
{
    return counted(count, QT_TRANSLATE_NOOP("RemovalWords", "1 image"),
                   QT_TRANSLATE_NOOP("RemovalWords", "%1 images"));
}

QString outcomeInWords(const RemovalReceipt &receipt, bool isPlan)
{
    if (!receipt.failure.isEmpty())
        return isPlan ? removalWords("stays as it is: %1").arg(receipt.failure)
                      : removalWords("not changed: %1").arg(receipt.failure);
    const std::size_t removed = receipt.result.removed.size();
    if (removed == 0)
        return removalWords("nothing to remove");
    QString words = isPlan ? counted(removed, QT_TRANSLATE_NOOP("RemovalWords", "1 item goes"),
                                     QT_TRANSLATE_NOOP("RemovalWords", "%1 items go"))
                           : counted(removed, QT_TRANSLATE_NOOP("RemovalWords", "1 item removed"),
                                     QT_TRANSLATE_NOOP("RemovalWords", "%1 items removed"));
    if (const std::size_t kept = receipt.result.kept.size(); kept > 0)
        words += isPlan ? counted(kept, QT_TRANSLATE_NOOP("RemovalWords", ", 1 stays"),
                                  QT_TRANSLATE_NOOP("RemovalWords", ", %1 stay"))
                        : counted(kept, QT_TRANSLATE_NOOP("RemovalWords", ", 1 kept"),
                                  QT_TRANSLATE_NOOP("RemovalWords", ", %1 kept"));
    return words;
}

QString receiptsInWords(std::span<const RemovalReceipt> receipts, bool isPlan, std::size_t asked)
{
    const Outcomes outcomes = outcomesOf(receipts);
    const QString count = countOfImages(outcomes.changed);
    QStringList parts{isPlan ? removalWords("%1 to be changed").arg(count)
                             : removalWords("%1 changed").arg(count)};
    const auto grouped = [](std::size_t number) { return groupedCount(static_cast<qint64>(number)); };
    if (outcomes.untouched > 0)
        parts.append(removalWords("%1 with nothing to remove").arg(grouped(outcomes.untouched)));
    if (outcomes.failed > 0)
        parts.append((isPlan ? removalWords("%1 that cannot be changed") : removalWords("%1 not changed"))
                         .arg(grouped(outcomes.failed)));
    if (asked > receipts.size())
        parts.append(removalWords("stopped before %1").arg(grouped(asked - receipts.size())));
    return parts.join(QStringLiteral(" · "));
}

QString selectedImagesInWords(std::size_t count, const QString &firstName)
{
    return count == 1 ? removalWords("The selected image “%1”").arg(firstName)
                      : removalWords("The %1 selected images").arg(groupedCount(static_cast<qint64>(count)));
}

QString allImagesInWords(std::size_t count, const QString &firstName)
{
    return count == 1
        ? removalWords("The image “%1”").arg(firstName)
        : removalWords("All %1 images of the list").arg(groupedCount(static_cast<qint64>(count)));
}

QString othersInWords(std::size_t count)
{
    return count == 0
        ? QString()
        : counted(count, QT_TRANSLATE_NOOP("RemovalWords", "1 file is no image, and stays as it is."),
                  QT_TRANSLATE_NOOP("RemovalWords", "%1 files are no images, and stay as they are."));
}

} // namespace quorvin
