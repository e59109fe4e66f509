// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/DataCacherDelivery.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <vector>

namespace quorvin {

class DataCacherMailbox;

/// Deliveries on their way from the threads of a pool to the thread of its mailbox. Any thread.
class DataCacherMail {
public:
    /// Does nothing once the mailbox is gone. Never waits for the other side.
    void post(const DataCacherDelivery &delivery);

private:
    friend class DataCacherMailbox;

    std::mutex _lock;
    std::vector<DataCacherDelivery> _waiting;
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
