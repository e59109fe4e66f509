// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/SearchField.h"

#include "shell/desktop/Icons.h"

#include <utility>

namespace quorvin {

SearchField::SearchField(QWidget *parent, QIcon picture) : QLineEdit(parent), _picture(std::move(picture)) { }

void SearchField::showEvent(QShowEvent *event)
{
    if (!isClearButtonEnabled()) {
        setClearButtonEnabled(true);
        addAction(_picture.isNull() ? themedIcon(QStringLiteral("edit-find")) : _picture, LeadingPosition);
    }
    QLineEdit::showEvent(event);
}

} // namespace quorvin
