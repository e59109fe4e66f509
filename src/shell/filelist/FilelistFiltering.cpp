// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistFiltering.h"

#include "platform/HeapMemory.h"
#include "shell/filelist/Disposal.h"
#include "shell/filelist/FilelistModel.h"

#include <utility>

namespace quorvin {

namespace {

/// What is in the files counts.
bool asksRecords(const FilelistFilter &criteria)
{
    return !criteria.globalText.isEmpty() || !criteria.rule.isEmpty();
}

bool isSameAnswer(const IndexAnswerPtr &one, const IndexAnswerPtr &other)
{
    return one && one->files() == other->files() && one->satisfyingRule() == other->satisfyingRule();
}

} // namespace

FilelistFiltering::FilelistFiltering(FilelistModel &whole, QObject *parent)
    : QObject(parent),
      _whole(whole),
      _index(std::make_shared<FilelistIndex>([this](const IndexAnswerPtr &answer) { takeAnswer(answer); },
                                             [this](const QStringList &names) {
                                                 _parameterNames = names;
                                                 Q_EMIT parameterNamesDidChange();
                                             }))
{
    _listTimer.setSingleShot(true);
    connect(&_listTimer, &QTimer::timeout, this, &FilelistFiltering::tellList);
    connect(&whole, &FilelistModel::rowsInserted, this, &FilelistFiltering::listDidChange);
    connect(&whole, &FilelistModel::rowsRemoved, this, &FilelistFiltering::listDidChange);
    connect(&whole, &FilelistModel::layoutChanged, this, &FilelistFiltering::listDidChange);
    connect(&whole, &FilelistModel::modelReset, this, &FilelistFiltering::listDidChange);
}

FilelistFiltering::~FilelistFiltering()
{
    _index->stop();
    BackgroundRunBase::runOnThread("Disposal", [index = std::move(_index), wasLong = _wasLong]() mutable {
        index.reset();
        if (wasLong)
            giveFreeMemoryBack();
    });
}

void FilelistFiltering::setCriteria(const FilelistFilter &criteria)
{
    if (criteria == _criteria)
        return;
    const FilelistFilter old = std::exchange(_criteria, criteria);
    _function = FilelistFilterFunction(criteria);
    if (old.globalText != criteria.globalText || old.rule != criteria.rule) {
        _search.cancel();
        if (asksRecords(criteria)) {
            tellList();
            _index->ask(criteria.globalText, criteria.rule);
            _search.start();
        } else {
            _index->stopAsking();
            _answer.reset();
        }
    }
    Q_EMIT criteriaDidChange();
    Q_EMIT didChange();
}

void FilelistFiltering::cancelSearch()
{
    FilelistFilter criteria = _criteria;
    criteria.globalText.clear();
    criteria.rule = {};
    setCriteria(criteria);
}

bool FilelistFiltering::passes(const FilelistItemPtr &file) const
{
    return _function.passesByFacts(*file) && (!_answer || _answer->has(file.get()));
}

std::function<bool(const FilelistItem &)> FilelistFiltering::passesWherever() const
{
    FilelistFilter criteria = _criteria;
    criteria.area.reset();
    return [function = FilelistFilterFunction(criteria), answer = _answer](const FilelistItem &file) {
        return function.passesByFacts(file) && (!answer || answer->has(&file));
    };
}

int FilelistFiltering::countOfRule() const
{
    return _answer && !_criteria.rule.isEmpty() ? static_cast<int>(_answer->satisfyingRule()) : 0;
}

void FilelistFiltering::fileIsDone(const FilelistItemPtr &file)
{
    _index->fileIsDone(file);
}

void FilelistFiltering::findFiles(const QString &text, FilelistIndex::TakeAnswer takeFound)
{
    tellList();
    _index->find(text, std::move(takeFound));
}

void FilelistFiltering::lookAtIndex(FilelistIndex::Look look)
{
    tellList();
    _index->lookAt(std::move(look));
}

void FilelistFiltering::takeAnswer(const IndexAnswerPtr &answer)
{
    const bool isSame = isSameAnswer(_answer, answer);
    _answer = answer;
    if (answer->isComplete())
        _search.end();
    else
        _search.tell(answer->progress());
    if (!isSame)
        Q_EMIT didChange();
}

void FilelistFiltering::listDidChange()
{
    if (!std::exchange(_isListNews, true))
        _listTimer.start(0);
}

void FilelistFiltering::tellList()
{
    if (!std::exchange(_isListNews, false))
        return;
    _wasLong = _wasLong || _whole.files().size() >= kManyRecords;
    _index->setFiles(_whole.files());
}

} // namespace quorvin
