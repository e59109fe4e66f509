// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/ExportWriter.h"

#include <QString>
#include <QStringList>

#include <memory>

class QIODevice;

namespace quorvin {

/// The keys of the formats there are, in their order.
QStringList exportFormats();

/// The extension of the documents of a format, without a dot; "" for a key that is not in `exportFormats`.
QString extensionOfFormat(const QString &format);

/// Null for a key that is not in `exportFormats`.
std::unique_ptr<ExportWriter> makeExportWriter(const QString &format, QIODevice &device,
                                               bool skipFilePrivate);

} // namespace quorvin
