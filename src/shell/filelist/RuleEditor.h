// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "shell/filelist/SavedRules.h"

#include <QFrame>
#include <QStringListModel>
#include <QTimer>

class QComboBox;
class QLabel;

namespace quorvin {

class ConditionGroup;
class RuleField;

/// A rule on files in two views, conditions and text: what is changed in one changes the other. Main thread.
class RuleEditor final : public QFrame {
    Q_OBJECT
public:
    /// `settings` must outlive the editor.
    explicit RuleEditor(LiveSettings &settings, QWidget *parent = nullptr);

    /// Shows the rule, unless it is the one that is being edited.
    void setRule(const Rule &rule);
    /// The parameters to choose from.
    void setNames(const QStringList &names) { _names.setStringList(names); }
    /// How many files satisfy the rule, as a sentence.
    void setMatches(const QString &text);
    void edit();

Q_SIGNALS:
    /// The user has changed it, or made its text a rule again.
    void ruleDidChange(const quorvin::Rule &rule);
    void closeWanted();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void layOut();
    QWidget *savedRow();
    void conditionsDidChange();
    void textDidChange();
    void fillSaved();
    void saveRule();
    void takeSaved(const QString &name);
    void clear();

    SavedRules _saved;
    QStringListModel _names;
    Rule _rule;
    ConditionGroup *_conditions;
    RuleField *_text;
    QLabel *_mistake;
    QLabel *_matches;
    QComboBox *_savedNames;
    QTimer _pause;
};

} // namespace quorvin
