// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LocalDates.h"

#include "platform/UserLocale.h"

#include <unicode/datefmt.h>
#include <unicode/simpletz.h>
#include <unicode/smpdtfmt.h>

#include <cmath>
#include <ctime>
#include <memory>
#include <optional>

namespace quorvin {

namespace {

/// What the C library takes for the offset from UTC at that second, in milliseconds. ICU does not know the
/// zones of POSIX, such as CET-1CEST, and takes them for UTC.
int32_t offsetAt(qint64 second)
{
    const auto time = static_cast<time_t>(second);
    struct tm local { };
    return ::localtime_r(&time, &local) ? static_cast<int32_t>(local.tm_gmtoff * 1000) : 0;
}

/// A format that shows whole seconds. Files of one folder often share their dates, so the last text is kept.
class SecondsFormat {
public:
    explicit SecondsFormat(std::unique_ptr<icu::DateFormat> format) : _format(std::move(format)) { }

    QString text(qint64 milliseconds)
    {
        const auto second = static_cast<qint64>(std::floor(static_cast<double>(milliseconds) / 1000));
        const int32_t offset = offsetAt(second);
        if (_format && (_second != second || _offset != offset)) {
            if (_offset != offset)
                _format->adoptTimeZone(new icu::SimpleTimeZone(offset, icu::UnicodeString()));
            icu::UnicodeString text;
            _format->format(static_cast<UDate>(milliseconds), text);
            _text = QString::fromUtf16(text.getBuffer(), text.length());
            _second = second;
            _offset = offset;
        }
        return _text;
    }

private:
    std::unique_ptr<icu::DateFormat> _format;
    std::optional<qint64> _second;
    std::optional<int32_t> _offset; ///< of the zone that the format has
    QString _text;
};

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
    thread_local SecondsFormat format(
        std::unique_ptr<icu::DateFormat>(icu::DateFormat::createDateTimeInstance(
            icu::DateFormat::kLong, icu::DateFormat::kMedium, dateLocale())));
    return format.text(milliseconds);
}

QString fixedDate(qint64 milliseconds)
{
    thread_local SecondsFormat format(makeFixedFormat());
    return format.text(milliseconds);
}

} // namespace quorvin
