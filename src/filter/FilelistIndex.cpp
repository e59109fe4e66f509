// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/FilelistIndex.h"

#include "filter/ParameterNames.h"

#include <pthread.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvin {

namespace {

constexpr std::size_t kChangesAtOnce = 64; ///< a question waits for no more
constexpr std::size_t kEntriesAtOnce = 1024;
constexpr std::chrono::milliseconds kBetweenAnswers(100);
constexpr std::chrono::milliseconds kBetweenNames(1000); ///< lists of thousands take their time to be sorted

} // namespace

FilelistIndex::FilelistIndex(TakeAnswer takeAnswer, TakeNames takeNames)
    : _takesNames(takeNames != nullptr),
      _mailbox(std::make_unique<IndexMailbox>(
          [this, take = std::move(takeAnswer)](const IndexAnswerPtr &answer) {
              if (answer->question() == _asked)
                  take(answer);
          },
          std::move(takeNames))),
      _thread([this](const std::stop_token &stop) { run(stop); })
{
}

FilelistIndex::~FilelistIndex()
{
    stop();
}

void FilelistIndex::stop()
{
    _thread.request_stop();
    const std::lock_guard guard(_lock);
    _looking.request_stop();
    _mailbox.reset();
}

void FilelistIndex::setFiles(const std::vector<FilelistItemPtr> &files)
{
    post(Files{files});
}

void FilelistIndex::fileIsDone(const FilelistItemPtr &file)
{
    post(Done{file});
}

quint64 FilelistIndex::ask(const QString &text, const Rule &rule)
{
    post(std::make_unique<IndexQuery>(text, rule));
    return _asked;
}

void FilelistIndex::stopAsking()
{
    post(std::unique_ptr<IndexQuery>());
}

void FilelistIndex::find(const QString &text, TakeAnswer takeFound)
{
    const std::lock_guard guard(_lock);
    _newestFind = Find{++_findAsked, text, std::move(takeFound)};
    _news.notify_one();
}

void FilelistIndex::lookAt(Look look)
{
    const std::lock_guard guard(_lock);
    _newestLook = std::move(look);
    _news.notify_one();
}

void FilelistIndex::post(Change change)
{
    const std::lock_guard guard(_lock);
    _changes.push_back(std::move(change));
    _news.notify_one();
}

void FilelistIndex::post(std::unique_ptr<IndexQuery> query)
{
    const std::lock_guard guard(_lock);
    _looking.request_stop();
    _looking = {};
    _newest = Question{++_asked, std::move(query), _looking.get_token()};
    _news.notify_one();
}

void FilelistIndex::run(const std::stop_token &stop)
{
    ::pthread_setname_np(::pthread_self(), "FilelistIndex");
    while (!stop.stop_requested()) {
        Work work = awaitWork(stop);
        if (work.newest)
            begin(*std::move(work.newest));
        applyAll(work.changes);
        if (const auto find = takeFind())
            answer(*find);
        lookOnce(stop);
        lookAround();
    }
}

FilelistIndex::Work FilelistIndex::awaitWork(const std::stop_token &stop)
{
    std::unique_lock lock(_lock);
    const auto isNews = [this] { return this->isNews(); };
    const bool hasNewNames = _takesNames && _index.names().size() > _namesTold;
    if (_isToTell)
        _news.wait_until(lock, stop, _told + kBetweenAnswers, isNews);
    else if (hasNewNames)
        _news.wait_until(lock, stop, _toldNames + kBetweenNames, isNews);
    else
        _news.wait(lock, stop, isNews);
    Work work;
    work.newest = std::exchange(_newest, {});
    const auto count = static_cast<std::ptrdiff_t>(std::min(_changes.size(), kChangesAtOnce));
    std::move(_changes.begin(), _changes.begin() + count, std::back_inserter(work.changes));
    _changes.erase(_changes.begin(), _changes.begin() + count);
    _isBehind = !_changes.empty();
    return work;
}

void FilelistIndex::applyAll(const std::deque<Change> &changes)
{
    for (const Change &change : changes)
        std::visit([this](const auto &one) { apply(one); }, change);
    const quint64 generation = _index.generation();
    _index.compact();
    if (_index.generation() == generation)
        return;
    // All numbers are others now: the question is looked at anew, behind the answer that stands.
    _sorted.clear();
    _isSorted = false;
    if (_question.query)
        begin({_question.number, std::make_unique<IndexQuery>(_question.query->anew()), _question.stop});
}

void FilelistIndex::apply(const Done &done)
{
    // A file that is to be read again keeps its entry until it was.
    if (!done.file->isDone() || !_order.contains(done.file.get()))
        return;
    if (_question.query && _index.entryOf(done.file.get()))
        _isToTell = true;
    _index.put(done.file, done.file->quorvinData());
    _isSorted = false;
}

void FilelistIndex::apply(const Files &list)
{
    _order.clear();
    _order.reserve(list.files.size());
    std::deque<Change> known;
    for (std::size_t i = 0; i < list.files.size(); ++i) {
        const FilelistItemPtr &file = list.files[i];
        _order[file.get()] = i;
        if (file->isDone() && !_index.entryOf(file.get()))
            known.emplace_back(Done{file});
    }
    for (std::size_t entry = 0; entry < _index.entries().size(); ++entry) {
        const FilelistItemPtr file = _index.entries()[entry].file;
        if (file && !_order.contains(file.get()))
            _index.remove(file);
    }
    _isSorted = false;
    _isToTell = _question.query != nullptr;
    if (known.empty())
        return;
    // With the others, so that a question waits for few of them.
    const std::lock_guard guard(_lock);
    std::ranges::move(known, std::back_inserter(_changes));
    _isBehind = true;
}

std::vector<std::size_t> FilelistIndex::entriesInOrder() const
{
    const auto entries = _index.entries();
    std::vector<std::pair<std::size_t, std::size_t>> places;
    places.reserve(entries.size());
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        if (!entries[entry].file)
            continue;
        const auto place = _order.find(entries[entry].file.get());
        places.emplace_back(place == _order.end() ? _order.size() : place->second, entry);
    }
    if (!std::ranges::is_sorted(places))
        std::ranges::sort(places);
    std::vector<std::size_t> sorted(places.size());
    std::ranges::transform(places, sorted.begin(), [](const auto &place) { return place.second; });
    return sorted;
}

void FilelistIndex::sort()
{
    _sorted = entriesInOrder();
    _isSorted = true;
}

void FilelistIndex::begin(Question question)
{
    const bool isWhole = _question.query && _next == _sorted.size() && _looked == _index.entries().size()
        && _question.query->isOf(_index);
    const bool isWithin = isWhole && question.query && question.query->isWithin(*_question.query);
    if (question.query
        && !question.query->mark(_index, isWithin ? _question.query.get() : nullptr, question.stop))
        return;
    const Marks candidates = std::exchange(_hits, {});
    if (!isWithin)
        _satisfying = {};
    _question = std::move(question);
    _isToTell = _question.query != nullptr;
    _isAnswered = false;
    _told = Clock::now();
    if (!_isSorted)
        sort();
    _looked = _index.entries().size();
    _hits.resize(_looked);
    _satisfying.resize(_looked);
    _next = isWithin ? _sorted.size() : 0;
    for (std::size_t entry = 0; isWithin && entry < candidates.size(); ++entry) {
        if (candidates[entry])
            look(entry);
    }
}

void FilelistIndex::look(std::size_t entry)
{
    const RecordIndex::Entry &one = _index.entries()[entry];
    if (!one.file || !_question.query->satisfiesRule(_index, one))
        return;
    _satisfying.set(entry);
    _isToTell = true;
    if (_question.query->hasText(_index, one))
        _hits.set(entry);
}

/// Looks at what was not looked at yet, until something else is wanted.
void FilelistIndex::lookAround()
{
    if (_question.query) {
        for (; _next < _sorted.size(); ++_next) {
            if (_next % kEntriesAtOnce == 0) {
                if (_question.stop.stop_requested())
                    return;
                tell(false);
            }
            look(_sorted[_next]);
        }
        const std::size_t end = _index.entries().size();
        if (_looked < end && !_question.query->mark(_index, nullptr, _question.stop))
            return;
        _hits.resize(end);
        _satisfying.resize(end);
        for (; _looked < end; ++_looked)
            look(_looked);
    }
    tell(!_isBehind);
}

/// Delivers what is new, from time to time while there is more to come.
void FilelistIndex::tell(bool isIdle)
{
    const auto now = Clock::now();
    if (isIdle && _takesNames && _index.names().size() > _namesTold && now - _toldNames >= kBetweenNames)
        deliverNames();
    if (_isToTell && (now - _told >= kBetweenAnswers || (isIdle && !_isAnswered)))
        deliver();
}

void FilelistIndex::deliver()
{
    IndexAnswer::Progress progress{_next, _sorted.size(), !_isBehind};
    const bool isAllLookedAt = _next == _sorted.size() && _looked == _index.entries().size();
    progress.isComplete = progress.isComplete && isAllLookedAt;
    if (!_isSorted && isAllLookedAt) {
        sort();
        _next = _sorted.size();
    }
    std::vector<FilelistItemPtr> files;
    std::size_t satisfying = 0;
    const auto entries = _index.entries();
    for (const std::size_t entry : _sorted) {
        if (!entries[entry].file)
            continue;
        satisfying += _satisfying[entry] ? 1 : 0;
        if (_hits[entry])
            files.push_back(entries[entry].file);
    }
    const auto answer
        = std::make_shared<const IndexAnswer>(_question.number, progress, std::move(files), satisfying);
    hand([&](IndexMailbox &mailbox) { mailbox.post(answer); });
    _isToTell = !progress.isComplete;
    _isAnswered = progress.isComplete;
    _told = Clock::now();
}

/// Once all is looked at that was known when it was asked.
std::optional<FilelistIndex::Find> FilelistIndex::takeFind()
{
    const std::lock_guard guard(_lock);
    return _changes.empty() ? std::exchange(_newestFind, {}) : std::nullopt;
}

void FilelistIndex::answer(const Find &find)
{
    IndexQuery query(find.text, {});
    query.mark(_index, nullptr, {});
    // The order in which a question is looked at stays.
    const std::vector<std::size_t> sorted = _isSorted ? _sorted : entriesInOrder();
    std::vector<FilelistItemPtr> files;
    for (const std::size_t entry : sorted) {
        const RecordIndex::Entry &one = _index.entries()[entry];
        if (one.file && query.hasText(_index, one))
            files.push_back(one.file);
    }
    const IndexAnswer::Progress progress{sorted.size(), sorted.size(), true};
    const auto answer = std::make_shared<const IndexAnswer>(find.number, progress, std::move(files), 0);
    hand([&](IndexMailbox &mailbox) {
        mailbox.postFound([this, answer, takeFound = find.takeFound] {
            if (answer->question() == _findAsked)
                takeFound(answer);
        });
    });
}

void FilelistIndex::lookOnce(const std::stop_token &stop)
{
    Look look;
    {
        const std::lock_guard guard(_lock);
        if (_changes.empty())
            look = std::exchange(_newestLook, {});
    }
    if (!look)
        return;
    if (auto useSeen = look(_index, stop))
        hand([&](IndexMailbox &mailbox) { mailbox.postSeen(std::move(useSeen)); });
}

void FilelistIndex::deliverNames()
{
    _namesTold = _index.names().size();
    _toldNames = Clock::now();
    ParameterNames names;
    for (const RecordIndex::Name &name : _index.names())
        names.add(name.group, name.subgroup, *name.term);
    hand([list = names.names()](IndexMailbox &mailbox) { mailbox.post(list); });
}

} // namespace quorvin
