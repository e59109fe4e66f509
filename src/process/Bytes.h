// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <concepts>
#include <utility>

namespace quorvin {

/// Values as bytes: integers in the order of this machine, texts as UTF-8 behind their length.
class ByteWriter {
public:
    template <typename Number>
    requires std::integral<Number> || std::floating_point<Number>
    void number(Number value) { put(&value, sizeof value); }
    void bytes(QByteArrayView bytes)
    {
        number(static_cast<quint32>(bytes.size()));
        put(bytes.data(), bytes.size());
    }
    void text(const QString &text) { bytes(text.toUtf8()); }

    QByteArray take()
    {
        _bytes.truncate(std::exchange(_used, 0));
        return std::exchange(_bytes, {});
    }
    QByteArrayView result() const { return QByteArrayView(_bytes).first(_used); }

private:
    /// Numbers come by the thousand: they are put where room was made before.
    void put(const void *from, qsizetype length)
    {
        if (length > _bytes.size() - _used)
            _bytes.resize(std::max(_used + length, 2 * _bytes.size() + 64));
        std::copy_n(static_cast<const char *>(from), length, _bytes.data() + _used);
        _used += length;
    }

    QByteArray _bytes; ///< with some room at the end
    qsizetype _used = 0;
};

/// The way back. Trusts nothing: what reads past the end gives 0 or "", and from then on nothing is `ok`.
class ByteReader {
public:
    explicit ByteReader(QByteArrayView bytes) : _rest(bytes) { }

    template <typename Number>
    requires std::integral<Number> || std::floating_point<Number> Number number()
    {
        Number value{};
        const QByteArrayView raw = take(sizeof value);
        std::copy(raw.begin(), raw.end(), reinterpret_cast<char *>(&value));
        return value;
    }
    /// A view into the bytes that are read.
    QByteArrayView bytes() { return take(number<quint32>()); }
    QString text() { return QString::fromUtf8(bytes()); }
    /// A number of things of which each takes at least `least` bytes: more than can follow is not ok, and 0.
    quint32 count(qsizetype least)
    {
        const auto value = number<quint32>();
        _ok = _ok && value <= _rest.size() / least;
        return _ok ? value : 0;
    }

    /// For what can be read but can't be meant.
    void fail() { _ok = false; }
    bool ok() const { return _ok; }
    bool atEnd() const { return _rest.isEmpty(); }

private:
    QByteArrayView take(qsizetype length)
    {
        _ok = _ok && length <= _rest.size();
        if (!_ok)
            return {};
        const QByteArrayView taken = _rest.first(length);
        _rest = _rest.sliced(length);
        return taken;
    }

    QByteArrayView _rest;
    bool _ok = true;
};

} // namespace quorvin
