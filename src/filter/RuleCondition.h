// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "filter/Rule.h"
#include "model/Quantity.h"
#include "model/QuorvinData.h"
#include "model/SearchText.h"

#include <QRegularExpression>
#include <QStringView>

namespace quorvin {

/// "Image", "Video", "Audio" or "Unknown": the first that the record is.
QLatin1String fileTypeOf(const QuorvinData &record);

/// Where a parameter stands: its group's key, and the name of its subgroup, "" in none.
struct ParameterPlace {
    QStringView group;
    QStringView subgroup;
};

/// A condition of a rule, made ready for many texts. A file satisfies it if it has a parameter that it is
/// about and for which it holds; one of IsMissing, if it has none that it is about. Any thread.
class RuleCondition {
public:
    /// The rule is a condition.
    explicit RuleCondition(const Rule &rule);

    Rule::Kind kind() const { return _kind; }
    /// It asks for the absence of what it is about.
    bool isOnAbsence() const { return _comparison == Rule::Comparison::IsMissing; }
    bool needsValue() const { return _kind != Rule::Kind::ParameterName && !isOnAbsence(); }

    /// Whether a parameter of that place and term is one that it is about.
    bool isAbout(const ParameterPlace &place, const Term &term) const;
    /// Whether it holds for a value, in valid UTF-8; of `FileType`, for the type.
    bool holdsFor(QByteArrayView value) const;
    /// It looks only at what a value measures; then this holds as the other does.
    bool isByQuantity() const { return _isByQuantity; }
    bool holdsFor(const Quantity &quantity) const;
    /// It looks only at the folded form of a value; then this holds as the other does.
    bool isByFoldedText() const
    {
        return _kind != Rule::Kind::Private && !_isByQuantity && _comparison != Rule::Comparison::Matches;
    }
    bool holdsForFolded(QByteArrayView folded) const;
    /// It holds for no value that does not contain its text.
    bool needsContained() const
    {
        return isByFoldedText()
            && (_comparison == Rule::Comparison::Contains || _comparison == Rule::Comparison::Equal);
    }
    const SearchText &text() const { return _text; }

private:
    Rule::Kind _kind;
    Rule::Comparison _comparison;
    SearchText _name; ///< SECTION/NAME
    SearchText _text;
    bool _isByQuantity;
    Quantity _quantity;
    Quantity _upTo;
    QRegularExpression _expression;
};

} // namespace quorvin
