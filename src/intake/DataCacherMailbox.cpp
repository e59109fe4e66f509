// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "intake/DataCacherMailbox.h"

#include <QCoreApplication>
#include <QEvent>

#include <utility>

namespace quorvin {

void DataCacherMail::post(const DataCacherDelivery &delivery)
{
    const std::lock_guard guard(_lock);
    if (!_mailbox)
        return;
    _waiting.push_back(delivery);
    // One event for all that has come when it is handled.
    if (_waiting.size() == 1)
        QCoreApplication::postEvent(_mailbox, new QEvent(QEvent::User));
}

DataCacherMailbox::DataCacherMailbox() : _mail(std::make_shared<DataCacherMail>())
{
    _mail->_mailbox = this;
}

DataCacherMailbox::~DataCacherMailbox()
{
    const std::lock_guard guard(_mail->_lock);
    _mail->_mailbox = nullptr;
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
    std::vector<DataCacherDelivery> deliveries;
    {
        const std::lock_guard guard(_mail->_lock);
        deliveries.swap(_mail->_waiting);
    }
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
