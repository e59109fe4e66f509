// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/CurrentFileWait.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

constexpr int kSecond = 1000;

} // namespace

CurrentFileWait::CurrentFileWait(QObject *parent) : QObject(parent)
{
    _timer.setSingleShot(true);
    _timer.setTimerType(Qt::PreciseTimer);
    connect(&_timer, &QTimer::timeout, this, &CurrentFileWait::tick);
}

int CurrentFileWait::seconds() const
{
    return _file ? static_cast<int>(_since.elapsed() / kSecond) : 0;
}

void CurrentFileWait::start(const FilelistItemPtr &file)
{
    if (file == _file)
        return;
    stop();
    _file = file;
    _since.start();
    _timer.start(kReadingMilliseconds);
}

void CurrentFileWait::stop()
{
    _timer.stop();
    _file = nullptr;
    if (std::exchange(_stage, None) != None)
        Q_EMIT changed();
}

void CurrentFileWait::skip()
{
    if (_stage == Long)
        Q_EMIT skipWanted(_file);
}

void CurrentFileWait::tick()
{
    const auto elapsed = static_cast<int>(_since.elapsed());
    _stage = elapsed < kLongMilliseconds ? Reading : Long;
    // The next whole second, or the moment from which the wait is long.
    const int next = _stage == Reading ? kLongMilliseconds : (elapsed / kSecond + 1) * kSecond;
    _timer.start(std::max(next - elapsed, 1));
    Q_EMIT changed();
}

} // namespace quorvin
