// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMessageBox>
#include <QString>
#include <Qt>

class QFont;
class QLabel;
class QWidget;

namespace quorvin {

// Names and values come from files, and the toolkit takes whatever looks like markup for markup: a folder
// named like a picture would have the picture loaded. So every text of the window that is not a fixed one
// goes through here. Main thread.

/// The text for a place that may take it for markup: what looks like markup is escaped, with its line breaks,
/// and anything else stays as it is. For tips and for the second text of a message.
QString plainTip(const QString &text);

/// The same for a tip in that font, in lines no wider than that: a path has no blanks to break it at.
QString plainTip(const QString &text, const QFont &font, int width);

/// The same for a tip over that widget, in lines that fit on its screen.
QString plainTip(const QString &text, const QWidget &over);

/// The alignment as the window's direction has it. A label by itself goes by the letters of its text, so that
/// a name in other letters would leave its column.
Qt::Alignment alignedInWindow(Qt::Alignment alignment);

/// A label that shows its texts letter by letter, at the side where the window begins its lines.
QLabel *plainLabel(const QString &text = {});

/// A message of plain texts that belongs to the window, keeps nobody waiting, and goes when it is closed.
QMessageBox *plainMessage(QWidget *window, const QString &title, const QString &text,
                          const QString &explanation, QMessageBox::StandardButton button);

} // namespace quorvin
