// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Vocabulary.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace quorvin {

/// The names that rules can use of the parameters of many records. One thread.
class ParameterNames {
public:
    /// `subgroup` is the name of the group within the group, "" in none.
    void add(const QString &group, const QString &subgroup, const Term &term);

    /// SECTION/LABEL of each, once, in the order of a file browser. Made anew when asked.
    QStringList names() const;

private:
    QSet<QString> _names;
};

} // namespace quorvin
