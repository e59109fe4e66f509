// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/FilelistFilter.h"
#include "intake/FilelistItem.h"
#include "shell/desktop/BackgroundRun.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <unordered_map>
#include <vector>

namespace quorvin {

class FilelistModel;

/// What narrows a window's list, and which of its files pass. Names are looked at when asked; what is in the
/// files is searched elsewhere, and the list stays as it was until that has ended. Files that are read
/// later, or come later, are asked then. Main thread.
class FilelistFiltering : public QObject {
    Q_OBJECT
public:
    /// `whole` must outlive this object.
    explicit FilelistFiltering(FilelistModel &whole, QObject *parent = nullptr);

    /// As they were set last. While `isSearching`, those before them still count for what is in the files.
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

Q_SIGNALS:
    void criteriaDidChange();
    /// Other files pass than before.
    void didChange();

private:
    /// A file as it is when it is asked.
    struct Subject {
        FilelistItemPtr file;
        QuorvinDataPtr record; ///< null: it could not be read
    };
    struct Answer {
        std::weak_ptr<const QuorvinData> record; ///< that was asked
        bool hasText = false;
        bool matchesRule = false;
    };
    using Answers = std::unordered_map<FilelistItemPtr, Answer>;

    static Answers answersOf(const std::vector<Subject> &subjects, const FilelistFilter &criteria,
                             const RunControl &run);
    void startSearch();
    void takeRows(int first, int last);
    void askNewcomers();
    void forgetRemoved();
    bool isAnswered(const Subject &subject) const;

    FilelistModel &_whole;
    FilelistFilter _criteria;
    FilelistFilterFunction _function{_criteria};
    bool _hasAnswers = false; ///< what is in the files counts
    Answers _answers;
    BackgroundRun<Answers> _search{this};
    BackgroundRun<Answers> _newcomersSearch{this};
    std::vector<FilelistItemPtr> _newcomers; ///< may have to be asked
    QTimer _newcomersTimer;
};

} // namespace quorvin
