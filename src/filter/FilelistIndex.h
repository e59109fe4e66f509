// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/IndexMailbox.h"
#include "filter/IndexQuery.h"
#include "filter/Marks.h"
#include "filter/RecordIndex.h"
#include "filter/Rule.h"
#include "intake/FilelistItem.h"
#include "model/QuorvinData.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <stop_token>
#include <thread>
#include <unordered_map>
#include <variant>
#include <vector>

namespace quorvin {

/// The index of one list, on a thread of its own. Its operations only leave a note for the thread. What that
/// finds comes back by the event loop: answers that replace each other, the first ones of a long search with
/// the files found so far. While the last question stands, files that are put in or removed change its
/// answer. One thread, that of its maker.
class FilelistIndex {
public:
    using TakeAnswer = IndexMailbox::TakeAnswer;
    using TakeNames = IndexMailbox::TakeNames;

    /// `takeAnswer` is handed the answers to the newest question alone; `takeNames`, which may be empty, the
    /// names of all parameters that rules can use, when there are new ones.
    explicit FilelistIndex(TakeAnswer takeAnswer, TakeNames takeNames = {});
    /// Gives up what is under way, and the deliveries with it.
    ~FilelistIndex();
    FilelistIndex(const FilelistIndex &) = delete;
    FilelistIndex &operator=(const FilelistIndex &) = delete;

    /// What an analysis gave; no record: it failed.
    void put(const FilelistItemPtr &file, const QuorvinDataPtr &record);
    /// Files that left the list, or wait to be analysed anew.
    void remove(const std::vector<FilelistItemPtr> &files);
    /// The order of answers from now on. Files that are not in it come behind, in the order in which they
    /// were put in.
    void setOrder(const std::vector<FilelistItemPtr> &files);
    /// Asks for the files that have the text, as `isContentHas` tells, and satisfy the rule; "" is in each. A
    /// question that is being looked at is given up. Gives the number of the question.
    quint64 ask(const QString &text, const Rule &rule);
    /// Nothing is asked any more.
    void stopAsking();

private:
    using Clock = std::chrono::steady_clock;

    struct Put {
        FilelistItemPtr file;
        QuorvinDataPtr record;
    };
    struct Remove {
        std::vector<FilelistItemPtr> files;
    };
    struct Order {
        std::vector<FilelistItemPtr> files;
    };
    using Change = std::variant<Put, Remove, Order>;

    struct Question {
        quint64 number = 0;
        std::unique_ptr<IndexQuery> query; ///< null: nothing is asked
        std::stop_token stop; ///< a newer one was asked
    };

    void post(Change change);
    void post(std::unique_ptr<IndexQuery> query);

    void run(const std::stop_token &stop);
    bool isNews() const { return _newest || !_changes.empty(); }
    void apply(const Put &put);
    void apply(const Remove &removed);
    void apply(const Order &order);
    void applyAll(std::deque<Change> changes);
    void begin(Question question);
    void lookAround();
    void look(std::size_t entry);
    void sort();
    void tell(bool isIdle);
    void deliver();
    void deliverNames();

    IndexMailbox _mailbox; ///< deliveries under way go with it
    quint64 _asked = 0; ///< number of the newest question

    std::mutex _lock; ///< guards the four below
    std::condition_variable_any _news;
    std::deque<Change> _changes;
    std::optional<Question> _newest; ///< not begun yet
    std::stop_source _looking; ///< of the newest question

    // Of the thread.
    RecordIndex _index;
    std::unordered_map<const FilelistItem *, std::size_t> _order;
    std::vector<std::size_t> _sorted; ///< entries in the order of the list
    bool _isSorted = true;
    Question _question;
    Marks _hits; ///< entries that satisfy it
    std::size_t _next = 0; ///< in the sorted entries: the first that was not looked at
    std::size_t _looked = 0; ///< entries from here on are not in that order, and were not looked at
    bool _isAnswered = false; ///< it was delivered, with what was known then
    bool _isToTell = false; ///< the answer is another than that which was delivered
    std::size_t _namesTold = 0;
    Clock::time_point _told;

    std::jthread _thread; ///< the last member: it ends before the others go
};

} // namespace quorvin
