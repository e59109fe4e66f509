// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LocalDates.h"

#include "platform/UserLocale.h"

#include <unicode/datefmt.h>
#include <unicode/smpdtfmt.h>

#include <memory>

namespace quorvin {

namespace {

QString formatted(const icu::DateFormat *format, qint64 milliseconds)
{
    if (!format)
        return {};
    icu::UnicodeString text;
    format->format(static_cast<UDate>(milliseconds), text);
    return QString::fromUtf16(text.getBuffer(), text.length());
}

std::unique_ptr<icu::DateFormat> makeFixedFormat()
{
    UErrorCode status = U_ZERO_ERROR;
    auto format = std::make_unique<icu::SimpleDateFormat>(icu::UnicodeString(u"yyyy-MM-dd'T'HH:mm:ssZZZZZ"),
                                                          icu::Locale("en_US_POSIX"), status);
    return U_SUCCESS(status) ? std::move(format) : nullptr;
}

} // namespace

QString localizedDate(qint64 milliseconds)
{
    // A format takes longer to make than a record may; it is not safe to share between threads.
    thread_local const std::unique_ptr<icu::DateFormat> format(icu::DateFormat::createDateTimeInstance(
        icu::DateFormat::kLong, icu::DateFormat::kMedium, dateLocale()));
    return formatted(format.get(), milliseconds);
}

QString fixedDate(qint64 milliseconds)
{
    thread_local const std::unique_ptr<icu::DateFormat> format = makeFixedFormat();
    return formatted(format.get(), milliseconds);
}

} // namespace quorvin
