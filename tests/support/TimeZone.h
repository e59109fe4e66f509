// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>

#include <ctime>

namespace quorvin::test {

/// The time zone of the process as TZ names it, for as long as this lives.
class TimeZone {
public:
    explicit TimeZone(const char *name) : _before(qgetenv("TZ"))
    {
        qputenv("TZ", name);
        ::tzset();
    }
    ~TimeZone()
    {
        if (_before.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", _before);
        ::tzset();
    }
    TimeZone(const TimeZone &) = delete;
    TimeZone &operator=(const TimeZone &) = delete;

private:
    QByteArray _before;
};

} // namespace quorvin::test
