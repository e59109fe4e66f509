// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/IndexAnswer.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

namespace quorvin {

/// Hands what an index finds to the thread in which the mailbox was made, by its event loop. What is still
/// waiting when something newer is posted gets dropped, and so does all that waits when the mailbox goes.
class IndexMailbox final : public QObject {
public:
    using TakeAnswer = std::function<void(const IndexAnswerPtr &)>;
    using TakeNames = std::function<void(const QStringList &)>;

    /// `takeNames` may be empty.
    IndexMailbox(TakeAnswer takeAnswer, TakeNames takeNames);

    bool takesNames() const { return _takeNames != nullptr; }
    /// Any thread, as the next.
    void post(IndexAnswerPtr answer);
    void post(QStringList names);
    /// What is to be done with the answer to something that was asked once; and with what came of a look.
    void postFound(std::function<void()> useFound);
    void postSeen(std::function<void()> useSeen);

protected:
    void customEvent(QEvent *event) override;

private:
    void ring();

    const TakeAnswer _takeAnswer;
    const TakeNames _takeNames;
    std::mutex _lock; ///< guards the four below
    IndexAnswerPtr _answer;
    std::optional<QStringList> _names;
    std::function<void()> _useFound;
    std::function<void()> _useSeen;
};

} // namespace quorvin
