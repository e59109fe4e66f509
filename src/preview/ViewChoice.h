// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

namespace quorvin {

/// How a file can be shown.
enum class PanelView { Facts, Picture, Medium, Text };

struct ViewChoice {
    PanelView view = PanelView::Facts;
    bool hasPictures = false; ///< of a medium: it is one of moving pictures, as far as its kind says
    QString kind; ///< in the user's language: "MPEG-4 video"; "" when it is not known
    QString mimeName;
};

/// By the name of a file and its first bytes. What begins with text is shown as text, whatever its name is: a
/// list of addresses is not to be played. Any thread.
ViewChoice viewFor(const QString &fileName, const QByteArray &head);

} // namespace quorvin
