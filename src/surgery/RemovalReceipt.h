// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/RemovalResult.h"

#include <QByteArray>
#include <QString>

#include <span>

namespace quorvin {

/// What became of one file.
struct RemovalReceipt {
    QString path;
    QString target = {}; ///< where the result stands, if not in the place of the file; "" in its place
    RemovalResult result = {};
    QString failure = {}; ///< why nothing was done; "" when it was, or nothing was to do
    QString digestBefore = {}; ///< SHA-256 in hex; both are "" where no file was written
    QString digestAfter = {};

    /// The file was rewritten, or a copy of it written.
    bool isWritten() const { return !digestAfter.isEmpty(); }
};

/// The receipts as text for a person: a line a file, and a line an item. `isPlan`: of what would go.
QString receiptsAsText(std::span<const RemovalReceipt> receipts, bool isPlan);
/// As JSON in UTF-8: {"files": [{"path", "target", "removed": [KEY…], "kept": [{"key", "reason"}…],
/// "failure", "before", "after"}…]}, without what is "".
QByteArray receiptsAsJson(std::span<const RemovalReceipt> receipts);
/// Writes them to a file, which is replaced: as JSON where its name ends in ".json", else as text.
Expected<void> writeReceipts(const QString &path, std::span<const RemovalReceipt> receipts, bool isPlan);

} // namespace quorvin
