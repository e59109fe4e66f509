// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/ValueDelegate.h"

#include <QGuiApplication>

namespace quorvin {

namespace {

constexpr QChar kFirstStrongIsolate(u'\u2068');
constexpr QChar kEndOfIsolate(u'\u2069');

} // namespace

QString ValueDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return QGuiApplication::isRightToLeft() && !text.isEmpty() ? kFirstStrongIsolate + text + kEndOfIsolate
                                                               : text;
}

} // namespace quorvin
