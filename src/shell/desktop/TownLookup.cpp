// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/TownLookup.h"

#include "places/Towns.h"
#include "shell/desktop/PlaceText.h"

namespace quorvin {

TownLookup::TownLookup(QObject *parent) : QObject(parent) { }

std::optional<QString> TownLookup::placeOf(const Location &location)
{
    if (_stage == Stage::Unasked) {
        _stage = Stage::Loading;
        _loading.start(
            "Towns", [](const RunControl &) { return !Towns::instance().towns().empty(); },
            [this](bool) {
                _stage = Stage::Ready;
                Q_EMIT ready();
            });
    }
    if (_stage != Stage::Ready)
        return {};
    const auto nearest = Towns::instance().nearest(location);
    return nearest ? std::optional(placeText(*nearest)) : std::nullopt;
}

} // namespace quorvin
