// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "model/ParameterGroups.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace quorvin {

namespace {

constexpr qsizetype kLongValue = 128; ///< bytes; looking for shorter ones costs more than it saves

} // namespace

QString ParameterGroups::Group::nameOf(const Stream &stream) const
{
    return numbered ? key + QLatin1String(" #") + QString::number(stream.number) : key;
}

void ParameterGroups::beginGroup(const QString &key, bool numbered)
{
    _groups.push_back({key, numbered, {}, {}});
}

quint16 ParameterGroups::addSubgroup(const QString &name)
{
    auto &subgroups = _groups.back().subgroups;
    if (subgroups.size() >= std::numeric_limits<quint16>::max())
        return 0;
    subgroups.push_back(name);
    return static_cast<quint16>(subgroups.size());
}

void ParameterGroups::beginStream(int number)
{
    _groups.back().streams.push_back(
        {static_cast<quint32>(number), static_cast<quint32>(_parameters.size()), 0});
}

void ParameterGroups::add(TermPtr term, QStringView value, ParameterFlags flags, quint16 subgroup)
{
    append(std::move(term), value.toUtf8(), flags, subgroup);
}

void ParameterGroups::addUtf8(TermPtr term, QByteArrayView value, ParameterFlags flags, quint16 subgroup)
{
    if (value.isValidUtf8())
        append(std::move(term), value, flags, subgroup);
    else
        add(std::move(term), textOfUtf8(value), flags, subgroup);
}

void ParameterGroups::append(TermPtr term, QByteArrayView value, ParameterFlags flags, quint16 subgroup)
{
    auto offset = placeOfEqual(value);
    if (!offset) {
        if (_text.size() + value.size() > std::numeric_limits<quint32>::max())
            value = {};
        offset = static_cast<quint32>(_text.size());
        _text.append(value);
    }
    _parameters.push_back({std::move(term), *offset, static_cast<quint32>(value.size()), flags, subgroup});
    ++_groups.back().streams.back().count;
}

bool ParameterGroups::setText(QByteArrayView text)
{
    if (!text.isValidUtf8())
        return false;
    _text = text.toByteArray();
    return true;
}

bool ParameterGroups::addSlice(TermPtr term, quint32 offset, quint32 length, ParameterFlags flags,
                               quint16 subgroup)
{
    const qint64 end = qint64{offset} + length;
    const auto isBetweenCharacters = [this](qint64 place) {
        return place == _text.size() || (static_cast<quint8>(_text[place]) & 0xc0) != 0x80;
    };
    if (end > _text.size() || !isBetweenCharacters(offset) || !isBetweenCharacters(end))
        return false;
    _parameters.push_back({std::move(term), offset, length, flags, subgroup});
    ++_groups.back().streams.back().count;
    return true;
}

std::optional<quint32> ParameterGroups::placeOfEqual(QByteArrayView value)
{
    if (value.size() < kLongValue)
        return std::nullopt;
    const std::size_t hash = qHash(value);
    for (auto known = _longValues.constFind(hash); known != _longValues.cend() && known.key() == hash;
         ++known) {
        const Parameter &parameter = _parameters[*known];
        if (utf8Value(parameter) == value)
            return parameter.offset;
    }
    _longValues.insert(hash, static_cast<quint32>(_parameters.size()));
    return std::nullopt;
}

void ParameterGroups::endStreamUnlessEmpty()
{
    auto &streams = _groups.back().streams;
    if (streams.back().count == 0)
        streams.pop_back();
}

void ParameterGroups::squeeze()
{
    _parameters.shrink_to_fit();
    _text.squeeze();
    _longValues = {};
}

std::span<const ParameterGroups::Parameter> ParameterGroups::parameters(const Stream &stream) const
{
    return std::span(_parameters).subspan(stream.first, stream.count);
}

std::vector<const ParameterGroups::Parameter *> ParameterGroups::shownParameters(const Stream &stream) const
{
    std::vector<const Parameter *> shown;
    shown.reserve(stream.count);
    for (const Parameter &parameter : parameters(stream)) {
        if (!parameter.flags.testFlag(ParameterFlag::SkipInExtended))
            shown.push_back(&parameter);
    }
    if (!std::ranges::is_sorted(shown, {}, &Parameter::subgroup))
        std::ranges::stable_sort(shown, {}, &Parameter::subgroup);
    return shown;
}

QByteArrayView ParameterGroups::utf8Value(const Parameter &parameter) const
{
    return QByteArrayView(_text).sliced(parameter.offset, parameter.length);
}

qint64 ParameterGroups::lengthOfValues() const
{
    return std::accumulate(_parameters.begin(), _parameters.end(), qint64{0},
                           [](qint64 sum, const Parameter &parameter) { return sum + parameter.length; });
}

const ParameterGroups::Group *ParameterGroups::group(QStringView key) const
{
    const auto found = std::ranges::find(_groups, key, &Group::key);
    return found == _groups.end() ? nullptr : &*found;
}

std::optional<QString> ParameterGroups::lookUp(const Stream &stream, QStringView key) const
{
    const Parameter *found = nullptr;
    for (const Parameter &parameter : parameters(stream)) {
        if (parameter.term->key == key)
            found = &parameter;
    }
    return found ? std::optional(value(*found)) : std::nullopt;
}

bool ParameterGroups::operator==(const ParameterGroups &other) const
{
    const auto same = [](const Parameter &left, const Parameter &right) {
        return left.term->key == right.term->key && left.term->label == right.term->label
            && left.offset == right.offset && left.length == right.length && left.flags == right.flags
            && left.subgroup == right.subgroup;
    };
    return _groups == other._groups && _text == other._text
        && std::ranges::equal(_parameters, other._parameters, same);
}

} // namespace quorvin
