// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"

#include <QWidget>

class QAbstractItemModel;
class QComboBox;
class QHBoxLayout;
class QVBoxLayout;

namespace quorvin {

/// Conditions and groups of them, to be edited, and how many of them have to hold. Main thread.
class ConditionGroup final : public QWidget {
    Q_OBJECT
public:
    enum class Place { Outermost, Within };

    /// `names` has the parameters to choose from, and must outlive the group. One within another can be
    /// removed.
    ConditionGroup(QAbstractItemModel &names, Place place, QWidget *parent = nullptr);

    /// Any rule: a condition stands alone in the group.
    void setRule(const Rule &rule);
    Rule rule() const;

Q_SIGNALS:
    void changed();
    void removeWanted();

private:
    enum Mode { All, Any, None, NotAll };

    void addButton(QHBoxLayout *row, const QString &text, const QString &name,
                   void (ConditionGroup::*clicked)()) const;
    void addCondition();
    void addGroup();
    void addPart(const Rule &part);
    void removePart(QWidget *part);

    QAbstractItemModel &_names;
    QComboBox *_mode;
    QVBoxLayout *_parts;
};

} // namespace quorvin
