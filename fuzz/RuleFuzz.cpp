// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "filter/RuleCompletion.h"
#include "filter/RuleText.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// A rule that was read is written as what reads as the same rule; a mistake and a completion lie in the text.

namespace {

using namespace quorvin;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkReading(const QString &text)
{
    const auto rule = parseRule(text);
    if (!rule) {
        require(rule.error().position >= 0 && rule.error().position <= text.size());
        require(rule.error().caretUnder(text).endsWith(u'^'));
        return;
    }
    const QString written = textOfRule(*rule);
    const auto again = parseRule(written);
    require(again && *again == rule->simplified());
    require(textOfRule(*again) == written);
}

void checkCompletion(const QString &text, qsizetype cursor)
{
    const QStringList names{QStringLiteral("Video/Width"), QStringLiteral("EXIF/ISO [x]")};
    const RuleCompletion completion = completeRule(text, cursor, names);
    require(completion.position >= 0 && completion.length >= 0
            && completion.position + completion.length <= text.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size == 0)
        return 0;
    const QString text = QString::fromUtf8(QByteArrayView(data + 1, static_cast<qsizetype>(size - 1)));
    checkReading(text);
    checkCompletion(text, text.size() * data[0] / 255);
    return 0;
}
