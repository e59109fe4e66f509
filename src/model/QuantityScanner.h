// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/QuantityKind.h"

#include <QLatin1String>
#include <QStringView>

#include <algorithm>
#include <optional>

namespace quorvin {

/// A unit as display texts write it.
struct QuantityUnit {
    QLatin1String text; ///< in any case
    QuantityKind kind;
    double factor; ///< to the base
    QLatin1String base;
};

/// Takes pieces off the front of a text. What does not take gives nothing, and may leave the text shorter.
class QuantityScanner {
public:
    explicit QuantityScanner(QStringView text) : _rest(text) { }

    bool isAtEnd() const { return _rest.isEmpty(); }
    void skipBlanks() { _rest = _rest.trimmed(); }
    bool take(QChar c);
    bool takeOneOf(QStringView letters)
    {
        return std::ranges::any_of(letters, [this](QChar c) { return take(c); });
    }

    /// Digits, as many as there are, between these two numbers of them.
    std::optional<double> digits(qsizetype least, qsizetype most);
    /// Digits, perhaps in groups of three behind blanks, perhaps with a fraction behind a point.
    std::optional<double> number();
    /// Letters, as many as there are.
    QStringView word();
    /// A unit that ends at a blank, glued to what was taken or behind a blank; that of no text at the end.
    /// Null for a word that is no unit.
    const QuantityUnit *unit();

private:
    bool hasGroup() const;

    QStringView _rest;
};

} // namespace quorvin
