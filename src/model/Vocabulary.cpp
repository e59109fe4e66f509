// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/Vocabulary.h"

#include <QHash>

#include <mutex>
#include <utility>

namespace quorvin {

TermPtr internTerm(const QString &key, const QString &label)
{
    static std::mutex lock;
    static QHash<std::pair<QString, QString>, TermPtr> terms;

    const std::lock_guard guard(lock);
    const std::pair name(key, label);
    if (const auto known = terms.constFind(name); known != terms.constEnd())
        return *known;
    auto term = std::make_shared<const Term>(Term{key, label});
    if (terms.size() < kMaxInternedTerms)
        terms.insert(name, term);
    return term;
}

} // namespace quorvin
