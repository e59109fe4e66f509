// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistFiltering.h"

#include "shell/filelist/FilelistModel.h"

#include <algorithm>
#include <utility>

namespace quorvin {

namespace {

/// What is in the files counts.
bool asksRecords(const FilelistFilter &criteria)
{
    return !criteria.globalText.isEmpty() || !criteria.rule.isEmpty();
}

bool isSameRecord(const std::weak_ptr<const QuorvinData> &one, const QuorvinDataPtr &other)
{
    return !one.owner_before(other) && !other.owner_before(one);
}

} // namespace

FilelistFiltering::FilelistFiltering(FilelistModel &whole, QObject *parent) : QObject(parent), _whole(whole)
{
    _newcomersTimer.setSingleShot(true);
    connect(&_newcomersTimer, &QTimer::timeout, this, &FilelistFiltering::askNewcomers);
    connect(&whole, &FilelistModel::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &last) { takeRows(first.row(), last.row()); });
    connect(&whole, &FilelistModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { takeRows(first, last); });
    connect(&whole, &FilelistModel::rowsRemoved, this, &FilelistFiltering::forgetRemoved);
    connect(&whole, &FilelistModel::modelReset, this, [this] {
        forgetRemoved();
        takeRows(0, _whole.rowCount() - 1);
    });
    connect(&_search, &BackgroundRunBase::ended, &_newcomersTimer, qOverload<>(&QTimer::start));
    connect(&_newcomersSearch, &BackgroundRunBase::ended, &_newcomersTimer, qOverload<>(&QTimer::start));
}

void FilelistFiltering::setCriteria(const FilelistFilter &criteria)
{
    if (criteria == _criteria)
        return;
    const FilelistFilter old = std::exchange(_criteria, criteria);
    _function = FilelistFilterFunction(criteria);
    if (old.globalText != criteria.globalText || old.rule != criteria.rule) {
        _search.cancel();
        _newcomersSearch.cancel();
        if (asksRecords(criteria)) {
            startSearch();
        } else {
            _hasAnswers = false;
            _answers.clear();
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
    if (!_function.passesByName(*file))
        return false;
    if (!_hasAnswers)
        return true;
    // A file that is read again keeps its place until the new record has answered.
    const auto answer = _answers.find(file);
    return answer != _answers.end() && answer->second.hasText && answer->second.matchesRule;
}

int FilelistFiltering::countOfRule() const
{
    if (_criteria.rule.isEmpty())
        return 0;
    return static_cast<int>(
        std::ranges::count_if(_answers, [](const auto &answer) { return answer.second.matchesRule; }));
}

FilelistFiltering::Answers FilelistFiltering::answersOf(const std::vector<Subject> &subjects,
                                                        const FilelistFilter &criteria, const RunControl &run)
{
    const SearchText text(criteria.globalText);
    const RuleMatcher rule(criteria.rule);
    Answers answers;
    answers.reserve(subjects.size());
    int done = 0;
    for (const auto &[file, record] : subjects) {
        if (run.isStopped())
            break;
        Answer answer{record};
        answer.hasText = text.isEmpty() || (record && record->isContentHas(text));
        answer.matchesRule = record ? rule.matches(*record) : rule.matchesFailed();
        answers.emplace(file, std::move(answer));
        run.report(++done, static_cast<int>(subjects.size()));
    }
    return answers;
}

void FilelistFiltering::startSearch()
{
    std::vector<Subject> subjects;
    subjects.reserve(_whole.files().size());
    for (const FilelistItemPtr &file : _whole.files()) {
        if (file->isDone())
            subjects.push_back({file, file->quorvinData()});
    }
    _search.start(
        "FilelistSearch",
        [subjects = std::move(subjects), criteria = _criteria](const RunControl &run) {
            return answersOf(subjects, criteria, run);
        },
        [this](Answers answers) {
            _answers = std::move(answers);
            _hasAnswers = true;
            forgetRemoved();
            Q_EMIT didChange();
        });
}

void FilelistFiltering::takeRows(int first, int last)
{
    if (!asksRecords(_criteria))
        return;
    for (int row = first; row <= last; ++row)
        _newcomers.push_back(_whole.fileAt(row));
    if (!_newcomersTimer.isActive())
        _newcomersTimer.start(0);
}

bool FilelistFiltering::isAnswered(const Subject &subject) const
{
    const auto answer = _answers.find(subject.file);
    return answer != _answers.end() && isSameRecord(answer->second.record, subject.record);
}

void FilelistFiltering::askNewcomers()
{
    if (_search.isUnderWay() || _newcomersSearch.isUnderWay())
        return;
    const std::vector<FilelistItemPtr> newcomers = std::exchange(_newcomers, {});
    std::vector<Subject> subjects;
    for (const FilelistItemPtr &file : newcomers) {
        Subject subject{file, file->quorvinData()};
        if (file->isDone() && !isAnswered(subject))
            subjects.push_back(std::move(subject));
    }
    if (subjects.empty() || !asksRecords(_criteria))
        return;
    _newcomersSearch.start(
        "NewcomersSearch",
        [subjects = std::move(subjects), criteria = _criteria](const RunControl &run) {
            return answersOf(subjects, criteria, run);
        },
        [this](const Answers &answers) {
            std::vector<FilelistItemPtr> files;
            for (const auto &[file, answer] : answers) {
                _answers.insert_or_assign(file, answer);
                files.push_back(file);
            }
            _whole.filesChanged(files);
        });
}

void FilelistFiltering::forgetRemoved()
{
    std::erase_if(_answers, [this](const auto &answer) { return _whole.rowOf(answer.first) < 0; });
}

} // namespace quorvin
