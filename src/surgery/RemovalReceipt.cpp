// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/RemovalReceipt.h"

#include "platform/AtomicFile.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QString receiptText(const char *words, int number = -1)
{
    return QCoreApplication::translate("RemovalReceipt", words, nullptr, number);
}

QString outcomeOf(const RemovalReceipt &receipt, bool isPlan)
{
    const auto count = static_cast<int>(receipt.result.removed.size());
    if (!receipt.failure.isEmpty())
        return receipt.failure;
    if (count == 0)
        return receiptText("nothing to remove");
    return isPlan ? receiptText("%n item(s) would go", count) : receiptText("%n item(s) removed", count);
}

QString textOf(const RemovalReceipt &receipt, bool isPlan)
{
    QString lines = receipt.path + ": "_L1 + outcomeOf(receipt, isPlan) + u'\n';
    if (!receipt.target.isEmpty())
        lines += "    "_L1 + receiptText("written to %1").arg(receipt.target) + u'\n';
    for (const QString &key : receipt.result.removed)
        lines += "    - "_L1 + key + u'\n';
    for (const KeptItem &item : receipt.result.kept)
        lines += "    "_L1 + receiptText("%1 stays: %2").arg(item.key, item.reason) + u'\n';
    if (!receipt.digestBefore.isEmpty())
        lines += "    "_L1 + receiptText("SHA-256 before") + u' ' + receipt.digestBefore + "\n    "_L1
            + receiptText("SHA-256 after") + u' ' + receipt.digestAfter + u'\n';
    return lines;
}

void insertText(QJsonObject &object, QLatin1String key, const QString &value)
{
    if (!value.isEmpty())
        object.insert(key, value);
}

QJsonObject jsonOf(const RemovalReceipt &receipt)
{
    QJsonArray removed;
    for (const QString &key : receipt.result.removed)
        removed.append(key);
    QJsonArray kept;
    for (const KeptItem &item : receipt.result.kept)
        kept.append(QJsonObject{{u"key"_s, item.key}, {u"reason"_s, item.reason}});
    QJsonObject object{{u"path"_s, receipt.path}, {u"removed"_s, removed}, {u"kept"_s, kept}};
    insertText(object, "target"_L1, receipt.target);
    insertText(object, "failure"_L1, receipt.failure);
    insertText(object, "before"_L1, receipt.digestBefore);
    insertText(object, "after"_L1, receipt.digestAfter);
    return object;
}

} // namespace

QString receiptsAsText(std::span<const RemovalReceipt> receipts, bool isPlan)
{
    QString all;
    for (const RemovalReceipt &receipt : receipts)
        all += textOf(receipt, isPlan);
    return all;
}

QByteArray receiptsAsJson(std::span<const RemovalReceipt> receipts)
{
    QJsonArray files;
    for (const RemovalReceipt &receipt : receipts)
        files.append(jsonOf(receipt));
    return QJsonDocument(QJsonObject{{u"files"_s, files}}).toJson();
}

Expected<void> writeReceipts(const QString &path, std::span<const RemovalReceipt> receipts, bool isPlan)
{
    const bool isJson = path.endsWith(".json"_L1, Qt::CaseInsensitive);
    const QByteArray bytes = isJson ? receiptsAsJson(receipts) : receiptsAsText(receipts, isPlan).toUtf8();
    return writeWhole(path, bytes);
}

} // namespace quorvin
