// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace quorvin {

/// Both take milliseconds since 1970 in UTC and write in the system's time zone. Any thread.

/// Long date and medium time in the user's locale: "November 21, 2026 at 2:12:05 AM".
QString localizedDate(qint64 milliseconds);

/// "yyyy-MM-dd'T'HH:mm:ssZZZZZ", such as 2021-03-04T05:06:07+01:00; the zone of UTC is "Z".
QString fixedDate(qint64 milliseconds);

} // namespace quorvin
