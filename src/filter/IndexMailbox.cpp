// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/IndexMailbox.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace quorvin {

IndexMailbox::IndexMailbox(TakeAnswer takeAnswer, TakeNames takeNames)
    : _takeAnswer(std::move(takeAnswer)), _takeNames(std::move(takeNames))
{
}

void IndexMailbox::post(IndexAnswerPtr answer)
{
    const std::lock_guard guard(_lock);
    if (!std::exchange(_answer, std::move(answer)))
        ring();
}

void IndexMailbox::post(QStringList names)
{
    const std::lock_guard guard(_lock);
    if (!std::exchange(_names, std::move(names)))
        ring();
}

/// One event for all that has come when it is handled.
void IndexMailbox::postFound(std::function<void()> useFound)
{
    const std::lock_guard guard(_lock);
    if (!std::exchange(_useFound, std::move(useFound)))
        ring();
}

void IndexMailbox::postSeen(std::function<void()> useSeen)
{
    const std::lock_guard guard(_lock);
    if (!std::exchange(_useSeen, std::move(useSeen)))
        ring();
}

void IndexMailbox::ring()
{
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void IndexMailbox::customEvent(QEvent *)
{
    IndexAnswerPtr answer;
    std::optional<QStringList> names;
    std::function<void()> useFound;
    std::function<void()> useSeen;
    {
        const std::lock_guard guard(_lock);
        answer = std::exchange(_answer, nullptr);
        names = std::exchange(_names, std::nullopt);
        useFound = std::exchange(_useFound, nullptr);
        useSeen = std::exchange(_useSeen, nullptr);
    }
    if (names)
        _takeNames(*names);
    if (answer)
        _takeAnswer(answer);
    if (useFound)
        useFound();
    if (useSeen)
        useSeen();
}

} // namespace quorvin
