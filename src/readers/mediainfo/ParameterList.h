// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// The parameters that the MediaInfo library knows, as an XML property list: a list of names for each kind of
/// stream. Any thread.
QString parameterPropertyList();

} // namespace quorvin
