// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "SBJson5/Json5ParserHandler.h"
#include "model/Error.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace quorvin {

/// What exiftool tells of one file in JSON.
struct Json5Root {
    std::shared_ptr<const Json5ParserHandler> document; ///< never null; all else belongs to it
    const Json5Object *root; ///< never null
};

/// The first file of an answer. Any thread.
Expected<Json5Root> rootOfOutput(const QByteArray &json);

/// A value as it is shown: of a list its values, with commas between them; a truth is 1 or 0.
QString textOfJson(const Json5Value &value);

} // namespace quorvin
