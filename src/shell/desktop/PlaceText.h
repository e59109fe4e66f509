// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

struct NearestTown;

/// Where a place is, for people: "3 km SW of Lausanne, Canton of Vaud, Switzerland"; "Lausanne, …" within a
/// kilometre of its middle. Kilometres are rounded to 10 from 100 on, and to 100 from 1,000 on; a state that
/// bears the town's name is left out. Any thread.
QString placeText(const NearestTown &nearest);

} // namespace quorvin
