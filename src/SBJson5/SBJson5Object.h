// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QList>
#include <QMetaType>
#include <QVariant>

#include <utility>

namespace quorvin {

/// A map that keeps the order of its entries. Its keys are meant to be strings; any other key is for the
/// writer to refuse.
struct SBJson5Object {
    QList<std::pair<QVariant, QVariant>> entries;
};

} // namespace quorvin

Q_DECLARE_METATYPE(quorvin::SBJson5Object)
