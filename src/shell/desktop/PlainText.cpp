// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/PlainText.h"

#include "export/HtmlText.h"

#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

namespace quorvin {

namespace {

constexpr int kBesideTip = 75; ///< of the screen, free of a long tip

} // namespace

QString plainTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    return QStringLiteral("<p>%1</p>").arg(stringWithNewLinesAsBRs(stringByEncodingHTMLEntities(text, true)));
}

QString plainTip(const QString &text, const QFont &font, int width)
{
    QStringList lines;
    for (const QString &paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines.append(paragraph.mid(line.textStart(), line.textLength()));
        }
        layout.endLayout();
    }
    return plainTip(lines.join(u'\n'));
}

QString plainTip(const QString &text, const QWidget &over)
{
    return plainTip(text, QToolTip::font(), over.screen()->availableGeometry().width() - kBesideTip);
}

Qt::Alignment alignedInWindow(Qt::Alignment alignment)
{
    return QStyle::visualAlignment(QGuiApplication::layoutDirection(), alignment) | Qt::AlignAbsolute;
}

QLabel *plainLabel(const QString &text)
{
    auto *label = new QLabel;
    label->setAlignment(alignedInWindow(Qt::AlignLeading | Qt::AlignVCenter));
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    return label;
}

QMessageBox *plainMessage(QWidget *window, const QString &title, const QString &text,
                          const QString &explanation, QMessageBox::StandardButton button)
{
    auto *message = new QMessageBox(QMessageBox::Warning, title, {}, button, window);
    message->setAttribute(Qt::WA_DeleteOnClose);
    message->setWindowModality(Qt::WindowModal);
    message->setTextFormat(Qt::PlainText);
    message->setText(text);
    // The format counts for the first text alone.
    message->setInformativeText(plainTip(explanation));
    return message;
}

} // namespace quorvin
