// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/UserLocale.h"

#include <QByteArray>

#include <langinfo.h>

#include <clocale>
#include <string_view>

namespace quorvin {

namespace {

QByteArray environmentLocale(const char *category)
{
    for (const char *name : {"LC_ALL", category, "LANG"}) {
        if (QByteArray value = qgetenv(name); !value.isEmpty())
            return value;
    }
    return {};
}

icu::Locale localeFromEnvironment(const char *category, const icu::Locale &plain)
{
    QByteArray name = environmentLocale(category);
    name.truncate(name.indexOf('.') >= 0 ? name.indexOf('.') : name.size());
    if (name.isEmpty() || name == "C" || name == "POSIX")
        return plain;
    const icu::Locale locale(name.constData());
    return locale.isBogus() ? plain : locale;
}

} // namespace

icu::Locale collationLocale()
{
    return localeFromEnvironment("LC_COLLATE", icu::Locale::getRoot());
}

icu::Locale dateLocale()
{
    return localeFromEnvironment("LC_TIME", icu::Locale::getUS());
}

void useUtf8CharacterType()
{
    std::setlocale(LC_NUMERIC, "C");
    if (std::string_view(::nl_langinfo(CODESET)) != "UTF-8")
        std::setlocale(LC_CTYPE, "C.UTF-8");
}

} // namespace quorvin
