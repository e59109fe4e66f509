// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/StillDecoder.h"

#include "platform/NativePath.h"
#include "process/ReaderRunner.h"
#include "process/RootSet.h"

#include <QTimer>

#include <memory>
#include <utility>

namespace quorvin {

namespace {

/// So long a picture that nobody waits for any more may still take: most are done by then, and giving one up
/// costs a new reader.
constexpr int kGraceMilliseconds = 200;

constexpr JobLimits kLimitsOfStill{.cpuSeconds = 10, .wallSeconds = 20};

} // namespace

StillDecoder::StillDecoder(QObject *parent)
    : QObject(parent), _thread([this](const std::stop_token &stop) { run(stop); })
{
}

StillDecoder::~StillDecoder()
{
    _thread.request_stop();
    const std::lock_guard guard(_lock);
    _stopRunning.request_stop();
}

void StillDecoder::decode(const PictureRequest &request, Use use)
{
    const quint64 before = _newest;
    _use = std::move(use);
    {
        const std::lock_guard guard(_lock);
        _wish = Wish{++_newest, request};
    }
    _wished.notify_one();
    QTimer::singleShot(kGraceMilliseconds, this, [this, before] {
        const std::lock_guard guard(_lock);
        if (_running != 0 && _running <= before)
            _stopRunning.request_stop();
    });
}

void StillDecoder::forget()
{
    ++_newest;
    _use = {};
    const std::lock_guard guard(_lock);
    _wish.reset();
}

std::optional<StillDecoder::Wish> StillDecoder::next(const std::stop_token &stop)
{
    std::unique_lock lock(_lock);
    _running = 0;
    if (!_wished.wait(lock, stop, [this] { return _wish.has_value(); }) || stop.stop_requested())
        return std::nullopt;
    auto wish = std::exchange(_wish, std::nullopt);
    _running = wish->number;
    _stopRunning = {};
    return wish;
}

void StillDecoder::run(const std::stop_token &stop)
{
    // The reader reads folders: one file after the other of the same one needs no new reader.
    const auto roots = std::make_shared<RootSet>();
    const auto runner = makeReaderRunner(roots);
    while (const auto wish = next(stop)) {
        std::stop_token stopOfWish;
        {
            const std::lock_guard guard(_lock);
            stopOfWish = _stopRunning.get_token();
        }
        if (const QString folder = withoutLastPathComponent(wish->request.path); folder.size() > 1)
            roots->add({folder});
        const auto result = runner->run({wish->request, kLimitsOfStill}, stopOfWish);
        const auto picture = result.map([](const JobAnswer &answer) { return std::get<Picture>(answer); });
        QMetaObject::invokeMethod(
            this, [this, number = wish->number, picture] { deliver(number, picture); }, Qt::QueuedConnection);
    }
}

void StillDecoder::deliver(quint64 number, const Expected<Picture> &picture)
{
    if (number != _newest || !_use)
        return;
    const Use use = std::exchange(_use, {});
    use(picture);
}

} // namespace quorvin
