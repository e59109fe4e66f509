// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "model/Picture.h"
#include "process/Job.h"

#include <QObject>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>

namespace quorvin {

/// Has pictures decoded in a guarded process, one after the other, the newest wish first; a wish that was
/// followed by another one is forgotten. Main thread.
class StillDecoder : public QObject {
    Q_OBJECT
public:
    using Use = std::function<void(const Expected<Picture> &)>;

    explicit StillDecoder(QObject *parent = nullptr);
    /// Gives up what is under way.
    ~StillDecoder() override;

    /// `use` is told what came of it, later on this thread, if there is no other wish until then.
    void decode(const PictureRequest &request, Use use);
    /// Nothing is wished for any more.
    void forget();

private:
    struct Wish {
        quint64 number = 0;
        PictureRequest request;
    };

    void run(const std::stop_token &stop);
    /// Absent when the thread is to end.
    std::optional<Wish> next(const std::stop_token &stop);
    void deliver(quint64 number, const Expected<Picture> &picture);

    quint64 _newest = 0; ///< number of the last wish
    Use _use; ///< of that one; none when it is fulfilled
    std::mutex _lock; ///< guards what follows
    std::condition_variable_any _wished;
    std::optional<Wish> _wish;
    quint64 _running = 0; ///< number of the wish in hand; 0 for none
    std::stop_source _stopRunning;
    std::jthread _thread; ///< the last one: it uses all others
};

} // namespace quorvin
