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

} // namespace

FilelistIndex::FilelistIndex(TakeAnswer takeAnswer, TakeNames takeNames)
    : _mailbox(
        [this, take = std::move(takeAnswer)](const IndexAnswerPtr &answer) {
            if (answer->question() == _asked)
                take(answer);
        },
        std::move(takeNames)),
      _thread([this](const std::stop_token &stop) { run(stop); })
{
}

FilelistIndex::~FilelistIndex()
{
    const std::lock_guard guard(_lock);
    _looking.request_stop();
}

void FilelistIndex::put(const FilelistItemPtr &file, const QuorvinDataPtr &record)
{
    post(Put{file, record});
}

void FilelistIndex::remove(const std::vector<FilelistItemPtr> &files)
{
    post(Remove{files});
}

void FilelistIndex::setOrder(const std::vector<FilelistItemPtr> &files)
{
    post(Order{files});
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
        std::deque<Change> changes;
        std::optional<Question> newest;
        {
            std::unique_lock lock(_lock);
            const auto isNews = [this] { return this->isNews(); };
            if (_isToTell)
                _news.wait_until(lock, stop, _told + kBetweenAnswers, isNews);
            else
                _news.wait(lock, stop, isNews);
            newest = std::exchange(_newest, {});
            const auto count = static_cast<std::ptrdiff_t>(std::min(_changes.size(), kChangesAtOnce));
            std::move(_changes.begin(), _changes.begin() + count, std::back_inserter(changes));
            _changes.erase(_changes.begin(), _changes.begin() + count);
        }
        if (newest)
            begin(*std::move(newest));
        applyAll(std::move(changes));
        lookAround();
    }
}

void FilelistIndex::applyAll(std::deque<Change> changes)
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

void FilelistIndex::apply(const Put &put)
{
    if (_question.query && _index.entryOf(put.file.get()))
        _isToTell = true;
    _index.put(put.file, put.record);
    _isSorted = false;
}

void FilelistIndex::apply(const Remove &removed)
{
    for (const FilelistItemPtr &file : removed.files) {
        _index.remove(file);
        _order.erase(file.get());
    }
    _isToTell = _question.query != nullptr;
}

void FilelistIndex::apply(const Order &order)
{
    _order.clear();
    for (std::size_t i = 0; i < order.files.size(); ++i)
        _order[order.files[i].get()] = i;
    _isSorted = false;
    _isToTell = _question.query != nullptr;
}

void FilelistIndex::sort()
{
    const auto entries = _index.entries();
    std::vector<std::pair<std::size_t, std::size_t>> places;
    places.reserve(entries.size());
    for (std::size_t entry = 0; entry < entries.size(); ++entry) {
        if (!entries[entry].file)
            continue;
        const auto known = _order.find(entries[entry].file.get());
        places.emplace_back(known == _order.end() ? _order.size() : known->second, entry);
    }
    if (!std::ranges::is_sorted(places))
        std::ranges::sort(places);
    _sorted.resize(places.size());
    std::ranges::transform(places, _sorted.begin(), [](const auto &place) { return place.second; });
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
    _question = std::move(question);
    _isToTell = _question.query != nullptr;
    _isAnswered = false;
    _told = Clock::now();
    if (!_isSorted)
        sort();
    _looked = _index.entries().size();
    _hits.resize(_looked);
    _next = isWithin ? _sorted.size() : 0;
    for (std::size_t entry = 0; isWithin && entry < candidates.size(); ++entry) {
        if (candidates[entry])
            look(entry);
    }
}

void FilelistIndex::look(std::size_t entry)
{
    const RecordIndex::Entry &one = _index.entries()[entry];
    if (one.file && _question.query->matches(_index, one)) {
        _hits.set(entry);
        _isToTell = true;
    }
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
        for (; _looked < end; ++_looked)
            look(_looked);
    }
    tell(true);
}

/// Delivers what is new, from time to time while there is more to come.
void FilelistIndex::tell(bool isIdle)
{
    if (isIdle && _mailbox.takesNames() && _index.names().size() > _namesTold)
        deliverNames();
    const bool isDue = Clock::now() - _told >= kBetweenAnswers;
    if (_isToTell && (isDue || (isIdle && !_isAnswered)))
        deliver();
}

void FilelistIndex::deliver()
{
    const bool isComplete = _next == _sorted.size() && _looked == _index.entries().size();
    if (!_isSorted && isComplete) {
        sort();
        _next = _sorted.size();
    }
    std::vector<FilelistItemPtr> files;
    const auto entries = _index.entries();
    for (const std::size_t entry : _sorted) {
        if (_hits[entry] && entries[entry].file)
            files.push_back(entries[entry].file);
    }
    _mailbox.post(std::make_shared<const IndexAnswer>(_question.number, isComplete, std::move(files)));
    _isToTell = !isComplete;
    _isAnswered = isComplete;
    _told = Clock::now();
}

void FilelistIndex::deliverNames()
{
    _namesTold = _index.names().size();
    ParameterNames names;
    for (const RecordIndex::Name &name : _index.names())
        names.add(name.group, name.subgroup, *name.term);
    _mailbox.post(names.names());
}

} // namespace quorvin
