// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacherDelivery.h"

#include <QObject>

#include <condition_variable>
#include <memory>
#include <mutex>
#include <stop_token>
#include <vector>

namespace quorvin {

class DataCacherMailbox;

/// Deliveries on their way from the threads of a pool to the thread of its mailbox. Any thread.
class DataCacherMail {
public:
    /// Does nothing once the mailbox is gone. Never waits for the other side.
    void post(const DataCacherDelivery &delivery);
    /// Whether more than 512 deliveries or 32 MiB of records wait for the other side.
    bool isFull();
    /// Waits while it is full; not for a mailbox that is gone, nor past a stop.
    void awaitRoom(const std::stop_token &stop);

private:
    friend class DataCacherMailbox;

    bool hasRoom() const;
    std::vector<DataCacherDelivery> takeAll();
    void close();

    std::mutex _lock;
    std::condition_variable_any _madeRoom;
    std::vector<DataCacherDelivery> _waiting;
    qsizetype _waitingBytes = 0; ///< of text
    DataCacherMailbox *_mailbox = nullptr;
};

/// Hands deliveries to the delegate, in the thread in which it was made, in the order in which they were
/// posted.
class DataCacherMailbox : public QObject {
public:
    DataCacherMailbox();
    ~DataCacherMailbox() override;

    /// May be null: what comes then is dropped.
    DataCacherDelegate *delegate = nullptr;
    const std::shared_ptr<DataCacherMail> &mail() const { return _mail; }

    /// Destroys the mailbox now, or, while it hands something over, as soon as it has done so.
    void dispose();

protected:
    void customEvent(QEvent *event) override;

private:
    std::shared_ptr<DataCacherMail> _mail;
    bool _isDelivering = false;
};

struct DataCacherMailboxDisposer {
    void operator()(DataCacherMailbox *mailbox) const { mailbox->dispose(); }
};

} // namespace quorvin
