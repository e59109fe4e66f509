// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/IndexMailbox.h"
#include "filter/IndexQuery.h"
#include "filter/Marks.h"
#include "filter/RecordIndex.h"
#include "filter/Rule.h"
#include "intake/FilelistItem.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
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
/// the files found so far. While the last question stands, files that come, change or go change its answer.
/// One thread, that of its maker; only the last step of its end may be another's.
class FilelistIndex {
public:
    using TakeAnswer = IndexMailbox::TakeAnswer;
    using TakeNames = IndexMailbox::TakeNames;

    /// `takeAnswer` is handed the answers to the newest question alone; `takeNames`, which may be empty, the
    /// names of all parameters that rules can use, when there are new ones.
    explicit FilelistIndex(TakeAnswer takeAnswer, TakeNames takeNames = {});
    /// Waits for a step of the thread, and lets go of all that the index holds, which takes its time. Any
    /// thread, once it was stopped.
    ~FilelistIndex();
    FilelistIndex(const FilelistIndex &) = delete;
    FilelistIndex &operator=(const FilelistIndex &) = delete;
    /// Gives up what is under way, and the deliveries with it. Nothing else is called from now on.
    void stop();

    /// The files of the list, in the order of answers. Those that were analysed before join the index by
    /// themselves.
    void setFiles(const std::vector<FilelistItemPtr> &files);
    /// An analysis of the file has ended. Counts for nothing while the file is not one of the list.
    void fileIsDone(const FilelistItemPtr &file);

    /// Asks for the files that have the text, as `isContentHas` tells, and satisfy the rule; "" is in each. A
    /// question that is being looked at is given up. Gives the number of the question.
    quint64 ask(const QString &text, const Rule &rule);
    /// Nothing is asked any more.
    void stopAsking();
    /// Asks once, beside the question, for the files that have a text. One that was not answered is
    /// forgotten.
    void find(const QString &text, TakeAnswer takeFound);

    /// What looks at the index, and gives what is to be done with what it saw; that may be empty. It should
    /// end soon when a stop is asked for.
    using Look = std::function<std::function<void()>(const RecordIndex &index, const std::stop_token &stop)>;
    /// Calls it once on the thread of the index, when all that was analysed before is in there; what it gives
    /// is called by the event loop. One that has not begun, or whose end was not told, is forgotten.
    void lookAt(Look look);

private:
    using Clock = std::chrono::steady_clock;

    struct Done {
        FilelistItemPtr file;
    };
    struct Files {
        std::vector<FilelistItemPtr> files;
    };
    using Change = std::variant<Done, Files>;

    struct Question {
        quint64 number = 0;
        std::unique_ptr<IndexQuery> query; ///< null: nothing is asked
        std::stop_token stop; ///< a newer one was asked
    };
    struct Find {
        quint64 number = 0;
        QString text;
        TakeAnswer takeFound;
    };
    /// What the thread takes with it to work on.
    struct Work {
        std::deque<Change> changes;
        std::optional<Question> newest;
    };

    void post(Change change);
    void post(std::unique_ptr<IndexQuery> query);

    void run(const std::stop_token &stop);
    bool isNews() const { return _newest || _newestFind || _newestLook || !_changes.empty(); }
    Work awaitWork(const std::stop_token &stop);
    void apply(const Done &done);
    void apply(const Files &list);
    void applyAll(const std::deque<Change> &changes);
    void begin(Question question);
    std::optional<Find> takeFind();
    void answer(const Find &find);
    void lookOnce(const std::stop_token &stop);
    void lookAround();
    void look(std::size_t entry);
    std::vector<std::size_t> entriesInOrder() const;
    void sort();
    void tell(bool isIdle);
    void deliver();
    void deliverNames();
    /// Calls `post` with the mailbox, unless the index was stopped.
    template <typename Post>
    void hand(const Post &post)
    {
        const std::lock_guard guard(_lock);
        if (_mailbox)
            post(*_mailbox);
    }

    const bool _takesNames;
    quint64 _asked = 0; ///< number of the newest question
    quint64 _findAsked = 0;

    std::mutex _lock; ///< guards all up to the stop source
    std::unique_ptr<IndexMailbox> _mailbox; ///< what is under way goes with it; null once stopped
    std::condition_variable_any _news;
    std::deque<Change> _changes;
    std::optional<Question> _newest; ///< not begun yet
    std::optional<Find> _newestFind;
    Look _newestLook; ///< empty: none is wanted
    std::stop_source _looking; ///< of the newest question

    // Of the thread.
    RecordIndex _index;
    std::unordered_map<const FilelistItem *, std::size_t> _order; ///< of the list
    std::vector<std::size_t> _sorted; ///< entries in the order of the list
    bool _isSorted = true;
    bool _isBehind = false; ///< changes wait that were there before
    Question _question;
    Marks _satisfying; ///< entries that satisfy its rule
    Marks _hits; ///< and have its text
    std::size_t _next = 0; ///< in the sorted entries: the first that was not looked at
    std::size_t _looked = 0; ///< entries from here on are not in that order, and were not looked at
    bool _isAnswered = false; ///< it was delivered, with what was known then
    bool _isToTell = false; ///< the answer is another than that which was delivered
    std::size_t _namesTold = 0;
    Clock::time_point _told;
    Clock::time_point _toldNames;

    std::jthread _thread; ///< the last member: it ends before the others go
};

} // namespace quorvin
