// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/ParameterGroups.h"
#include "model/Vocabulary.h"

#include <QByteArrayView>
#include <QStringView>

#include <optional>
#include <vector>

namespace quorvin {

/// What a parameter can give away of the person behind a file.
enum class PrivateKind : quint8 {
    Position, ///< coordinates of the place where it was made
    Place, ///< the name of a town or a place within it
    SerialNumber, ///< of a camera, a lens or a flash
    Owner, ///< whose the camera or the file is
    Author, ///< who made a picture, wrote its texts or holds its rights
    Person, ///< who is to be seen
    Contact, ///< a mail address, telephone number, street or page
    Origin, ///< where the file was downloaded from
};

/// What parameters of that key give away, whatever their value; absent of those that give nobody away. Who
/// performs in music and films does not count. Keys are those of `Term`, of all readers. Any thread.
std::optional<PrivateKind> privateKindOf(QStringView key);

/// Whether a value of such a parameter says anything: fields of blanks and zeros are filled in by cameras.
bool isTelling(QByteArrayView value);

/// What a file gives away in the parameters that its Extended tree shows: each kind once, in the order of the
/// enumeration. Any thread.
std::vector<PrivateKind> privateKindsIn(const ParameterGroups &groups);

} // namespace quorvin
