// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/SearchField.h"

#include "shell/desktop/Icons.h"

namespace quorvin {

void SearchField::showEvent(QShowEvent *event)
{
    if (!isClearButtonEnabled()) {
        setClearButtonEnabled(true);
        addAction(symbolIcon(QStringLiteral("edit-find")), LeadingPosition);
    }
    QLineEdit::showEvent(event);
}

} // namespace quorvin
