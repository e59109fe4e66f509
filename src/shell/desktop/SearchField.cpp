// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/SearchField.h"

#include "shell/desktop/Icons.h"

namespace quorvin {

SearchField::SearchField(QWidget *parent, const QIcon &picture) : QLineEdit(parent), _picture(picture) { }

void SearchField::showEvent(QShowEvent *event)
{
    if (!isClearButtonEnabled()) {
        setClearButtonEnabled(true);
        addAction(_picture.isNull() ? themedIcon(QStringLiteral("edit-find")) : _picture, LeadingPosition);
    }
    QLineEdit::showEvent(event);
}

} // namespace quorvin
