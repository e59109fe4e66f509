// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/TextView.h"

#include "platform/RegularFile.h"
#include "preview/TextExcerpt.h"
#include "shell/desktop/PlainText.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace quorvin {

TextView::TextView(QWidget *parent) : QWidget(parent), _text(new QPlainTextEdit), _note(plainLabel())
{
    _text->setReadOnly(true);
    _text->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    _text->setFrameShape(QFrame::NoFrame);
    _text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    _text->setAccessibleName(tr("Text of the file"));
    setFocusProxy(_text);
    _note->setMargin(4);
    _note->hide();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_text, 1);
    column->addWidget(_note);
}

void TextView::setFile(const RegularFile &file)
{
    const QByteArray head = file.head(kMostTextBytes);
    const bool isWhole = static_cast<quint64>(head.size()) >= file.size();
    _text->setPlainText(textOf(head, isWhole));
    _note->setText(isWhole ? QString() : tr("Only the first %1 KiB are shown").arg(kMostTextBytes >> 10));
    _note->setVisible(!isWhole);
}

void TextView::clear()
{
    _text->clear();
    _note->setText({});
    _note->hide();
}

QString TextView::text() const
{
    return _text->toPlainText();
}

QString TextView::note() const
{
    return _note->text();
}

} // namespace quorvin
