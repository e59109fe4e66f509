// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "intake/FilelistItem.h"

#include <QString>
#include <QStringList>

#include <random>

namespace quorvin::test {

/// A file whose analysis ended so.
FilelistItemPtr fileWith(const Expected<QuorvinDataPtr> &result);
/// A record with a parameter for each name in a group "G", its values from the list, again and again.
QuorvinDataPtr recordOfTexts(const QStringList &names, const QStringList &values);

/// Random texts in many scripts and both cases, composed and not.
class TextMaker {
public:
    explicit TextMaker(unsigned seed) : _random(seed) { }

    QString one(int longest);
    QStringList some(int count);

private:
    int number(int end) { return std::uniform_int_distribution(0, end - 1)(_random); }

    std::mt19937 _random;
};

} // namespace quorvin::test
