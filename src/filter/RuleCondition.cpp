// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleCondition.h"

#include "model/PrivateParameters.h"
#include "model/Utf8.h"

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;
using enum Rule::Comparison;

bool isOfOrder(const Rule &rule)
{
    switch (rule.comparison) {
    case Less:
    case LessOrEqual:
    case Greater:
    case GreaterOrEqual:
    case Within:
        return true;
    default:
        return rule.value.isQuantity;
    }
}

} // namespace

QLatin1String fileTypeOf(const QuorvinData &record)
{
    if (record.isImage())
        return "Image"_L1;
    if (record.isVideo())
        return "Video"_L1;
    return record.isAudio() ? "Audio"_L1 : "Unknown"_L1;
}

RuleCondition::RuleCondition(const Rule &rule)
    : _kind(rule.kind),
      _comparison(rule.comparison),
      _name(rule.parameter),
      _text(rule.value.text),
      _isByQuantity(isOfOrder(rule)),
      _quantity(_isByQuantity ? quantityOf(rule.value.text) : Quantity{}),
      _upTo(_isByQuantity ? quantityOf(rule.upTo.text) : Quantity{})
{
    if (_comparison == Matches)
        _expression = QRegularExpression(rule.value.text,
                                         QRegularExpression::CaseInsensitiveOption
                                             | QRegularExpression::UseUnicodePropertiesOption);
}

bool RuleCondition::isAbout(const ParameterPlace &place, const Term &term) const
{
    if (_kind == Rule::Kind::Private)
        return privateKindOf(term.key).has_value();
    if (_kind == Rule::Kind::ParameterName)
        return holdsFor(term.label.toUtf8());
    if (_kind != Rule::Kind::Parameter)
        return _kind == Rule::Kind::ParameterValue;
    const auto isIn = [&](QStringView section) {
        const QByteArray start = section.toUtf8() + '/';
        return _name.isAllOf(start + term.label.toUtf8()) || _name.isAllOf(start + term.key.toUtf8());
    };
    return isIn(place.group) || (!place.subgroup.isEmpty() && isIn(place.subgroup));
}

bool RuleCondition::holdsFor(QByteArrayView value) const
{
    if (_kind == Rule::Kind::Private)
        return isTelling(value);
    if (_isByQuantity)
        return holdsFor(quantityOf(textOfUtf8(value)));
    switch (_comparison) {
    case Equal:
        return _text.isAllOf(value);
    case NotEqual:
        return !_text.isAllOf(value);
    case Contains:
        return _text.isIn(value);
    case Matches:
        return _expression.match(textOfUtf8(value)).hasMatch();
    default:
        return false;
    }
}

bool RuleCondition::holdsForFolded(QByteArrayView folded) const
{
    switch (_comparison) {
    case Equal:
        return folded == QByteArrayView(_text.folded());
    case NotEqual:
        return folded != QByteArrayView(_text.folded());
    case Contains:
        return _text.isInFolded(folded);
    default:
        return false;
    }
}

bool RuleCondition::holdsFor(const Quantity &quantity) const
{
    const auto order = compareQuantities(quantity, _quantity);
    if (!order)
        return _comparison == NotEqual;
    switch (_comparison) {
    case Equal:
        return *order == 0;
    case NotEqual:
        return *order != 0;
    case Less:
        return *order < 0;
    case LessOrEqual:
        return *order <= 0;
    case Greater:
        return *order > 0;
    case GreaterOrEqual:
        return *order >= 0;
    case Within:
        return *order >= 0 && compareQuantities(quantity, _upTo).value_or(1) <= 0;
    default:
        return false;
    }
}

} // namespace quorvin
