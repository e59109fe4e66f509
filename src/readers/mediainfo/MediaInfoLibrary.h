// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "readers/mediainfo/StreamKind.h"

#include <QString>

namespace quorvin::mi {

/// The C interface of the library, with strings in place of wide characters; the first call loads it. A
/// failure of any kind, also a library that is not there, gives null, false, 0 or "". Only `oMediaInfo` and
/// what it is made of call it.

void *create();
void destroy(void *handle);
bool open(void *handle, const QString &path);
QString inform(void *handle);
/// A null handle means the library itself.
QString option(void *handle, const QString &name, const QString &value);
qint64 count(void *handle, StreamKind kind);
qint64 count(void *handle, StreamKind kind, quint64 number);
QString get(void *handle, StreamKind kind, quint64 number, qint64 parameter, int info);
QString get(void *handle, StreamKind kind, quint64 number, const QString &parameter, int info);

} // namespace quorvin::mi
