// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Location.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>
#include <QString>

#include <optional>

namespace quorvin {

/// Names places. The towns are read at the first question, in the background; until they have come there is
/// no answer. Main thread.
class TownLookup final : public QObject {
    Q_OBJECT
public:
    explicit TownLookup(QObject *parent = nullptr);

    /// As `placeText`. Absent as long as the towns are not there, for an impossible location, and where the
    /// system knows no towns.
    std::optional<QString> placeOf(const Location &location);

Q_SIGNALS:
    /// The towns have come: what was asked before may be asked again.
    void ready();

private:
    enum class Stage { Unasked, Loading, Ready };

    Stage _stage = Stage::Unasked;
    BackgroundRun<bool> _loading{this};
};

} // namespace quorvin
