// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherMailbox.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kMostWaiting = 512;
constexpr qsizetype kMostWaitingBytes = qsizetype{32} << 20;

} // namespace

void DataCacherMail::post(const DataCacherDelivery &delivery)
{
    const std::lock_guard guard(_lock);
    if (!_mailbox)
        return;
    _waiting.push_back(delivery);
    if (delivery.data)
        _waitingBytes += delivery.data->groups().text().size();
    // One event for all that has come when it is handled.
    if (_waiting.size() == 1)
        QCoreApplication::postEvent(_mailbox, new QEvent(QEvent::User));
}

bool DataCacherMail::hasRoom() const
{
    return !_mailbox || (_waiting.size() <= kMostWaiting && _waitingBytes <= kMostWaitingBytes);
}

bool DataCacherMail::isFull()
{
    const std::lock_guard guard(_lock);
    return !hasRoom();
}

void DataCacherMail::awaitRoom(const std::stop_token &stop)
{
    std::unique_lock lock(_lock);
    _madeRoom.wait(lock, stop, [this] { return hasRoom(); });
}

std::vector<DataCacherDelivery> DataCacherMail::takeAll()
{
    const std::lock_guard guard(_lock);
    _waitingBytes = 0;
    _madeRoom.notify_all();
    return std::exchange(_waiting, {});
}

void DataCacherMail::close()
{
    const std::lock_guard guard(_lock);
    _mailbox = nullptr;
    _madeRoom.notify_all();
}

DataCacherMailbox::DataCacherMailbox() : _mail(std::make_shared<DataCacherMail>())
{
    _mail->_mailbox = this;
}

DataCacherMailbox::~DataCacherMailbox()
{
    _mail->close();
}

void DataCacherMailbox::dispose()
{
    delegate = nullptr;
    if (_isDelivering)
        deleteLater();
    else
        delete this;
}

void DataCacherMailbox::customEvent(QEvent *)
{
    const std::vector<DataCacherDelivery> deliveries = _mail->takeAll();
    const bool wasDelivering = std::exchange(_isDelivering, true);
    for (const DataCacherDelivery &delivery : deliveries) {
        if (delegate)
            delegate->dataCacherNewObjectReady(delivery);
    }
    if (delegate)
        delegate->dataCacherDidDeliver();
    _isDelivering = wasDelivering;
}

} // namespace quorvin
