// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <memory>

namespace quorvin {

/// What a parameter is called: its stable key and its human label.
struct Term {
    QString key;
    QString label;
};

using TermPtr = std::shared_ptr<const Term>;

/// The one shared term of this key and label. Records of one kind of file use the same few hundred terms, so
/// that a parameter costs a pointer and not two strings.
///
/// Damaged files can bring names of their own without end: beyond `kMaxInternedTerms` a new term is made for
/// the caller alone. Any thread.
TermPtr internTerm(const QString &key, const QString &label);

inline constexpr int kMaxInternedTerms = 20'000;

} // namespace quorvin
