// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/FilelistFilter.h"
#include "filter/FilelistIndex.h"
#include "intake/FilelistItem.h"
#include "shell/filelist/FilelistSearch.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>

namespace quorvin {

class FilelistModel;

/// What narrows a window's list, and which of its files pass. Names are looked at when asked; what is in the
/// files is asked of an index that follows the list, and the list stays as it was until that has answered.
/// Files that are read later, or come later, pass when they have been looked at. Main thread.
class FilelistFiltering : public QObject {
    Q_OBJECT
public:
    /// `whole` must outlive this object.
    explicit FilelistFiltering(FilelistModel &whole, QObject *parent = nullptr);
    ~FilelistFiltering() override;

    /// As they were set last. While `isSearching`, those before them may still count for what is in the
    /// files.
    const FilelistFilter &criteria() const { return _criteria; }
    void setCriteria(const FilelistFilter &criteria);
    /// Nothing is searched for any more.
    void cancelSearch();
    bool isSearching() const { return _search.isUnderWay(); }
    /// The search, which counts files.
    BackgroundRunBase &search() { return _search; }
    /// How many files satisfy the rule, whatever else narrows the list; 0 while there is none.
    int countOfRule() const;
    bool passes(const FilelistItemPtr &file) const;
    /// Asks as `passes` does now, wherever a file was recorded. The function may be called on any thread.
    std::function<bool(const FilelistItem &)> passesWherever() const;

    /// An analysis of the file has ended.
    void fileIsDone(const FilelistItemPtr &file);
    /// Looks for the files of the list that have a text, narrowed or not; `takeFound` is told of them unless
    /// another text is looked for meanwhile.
    void findFiles(const QString &text, FilelistIndex::TakeAnswer takeFound);
    /// As `FilelistIndex::lookAt`, at the list as it is now.
    void lookAtIndex(FilelistIndex::Look look);
    /// SECTION/NAME of all parameters that rules can use, in the order of a file browser.
    const QStringList &parameterNames() const { return _parameterNames; }

Q_SIGNALS:
    void criteriaDidChange();
    /// Other files pass than before.
    void didChange();
    void parameterNamesDidChange();

private:
    void takeAnswer(const IndexAnswerPtr &answer);
    void listDidChange();
    void tellList();

    FilelistModel &_whole;
    FilelistFilter _criteria;
    FilelistFilterFunction _function{_criteria};
    IndexAnswerPtr _answer; ///< that counts; null while what is in the files does not
    FilelistSearch _search;
    QStringList _parameterNames;
    bool _wasLong = false; ///< the list had very many files once
    bool _isListNews = false; ///< the index has not been told of the list as it is
    QTimer _listTimer; ///< then it will be
    std::shared_ptr<FilelistIndex> _index;
};

} // namespace quorvin
