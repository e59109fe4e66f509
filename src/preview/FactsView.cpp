// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/FactsView.h"

#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <array>

namespace quorvin {

namespace {

constexpr int kIconSide = 128;
constexpr int kMargin = 16;
constexpr int kMostTextWidth = 480;
constexpr qreal kHeadline = 1.25; ///< times the normal text

QLabel *wrappedLabel()
{
    QLabel *label = plainLabel();
    label->setWordWrap(true);
    label->setMaximumWidth(kMostTextWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

} // namespace

FactsView::FactsView(QWidget *parent)
    : QWidget(parent), _icon(plainLabel()), _name(wrappedLabel()), _problem(wrappedLabel())
{
    QFont font = _name->font();
    font.setPointSizeF(font.pointSizeF() * kHeadline);
    font.setWeight(QFont::DemiBold);
    _name->setFont(font);
    _icon->setFixedSize(kIconSide, kIconSide);
    auto *texts = new QGridLayout;
    texts->setHorizontalSpacing(kMargin / 2);
    texts->addWidget(_name, 0, 0, 1, 2);
    texts->addWidget(_problem, 1, 0, 1, 2);
    const std::array labels{tr("Kind"), tr("Size"), tr("Modified")};
    for (std::size_t row = 0; row < kRows; ++row) {
        _labels[row] = plainLabel(labels[row]);
        _labels[row]->setForegroundRole(QPalette::PlaceholderText);
        _values[row] = wrappedLabel();
        texts->addWidget(_labels[row], static_cast<int>(row) + 2, 0, Qt::AlignTop | Qt::AlignRight);
        texts->addWidget(_values[row], static_cast<int>(row) + 2, 1, Qt::AlignTop);
    }
    texts->setColumnStretch(1, 1);
    auto *line = new QHBoxLayout;
    line->setSpacing(kMargin);
    line->addStretch();
    line->addWidget(_icon, 0, Qt::AlignTop);
    line->addLayout(texts);
    line->addStretch();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addStretch();
    column->addLayout(line);
    column->addStretch();
}

void FactsView::setFacts(const ShownFacts &facts)
{
    const QIcon icon = facts.mimeName.isEmpty() ? fileNameIcon(facts.name) : mimeIcon(facts.mimeName);
    _icon->setPixmap(icon.pixmap(kIconSide));
    _name->setText(facts.name);
    _problem->setText(facts.problem);
    _problem->setVisible(!facts.problem.isEmpty());
    const std::array values{facts.kind, facts.size, facts.modified};
    for (std::size_t row = 0; row < kRows; ++row) {
        _values[row]->setText(values[row]);
        _values[row]->setVisible(!values[row].isEmpty());
        _labels[row]->setVisible(!values[row].isEmpty());
    }
}

QString FactsView::text() const
{
    QStringList lines{_name->text(), _problem->text()};
    for (const QLabel *value : _values)
        lines.append(value->text());
    lines.removeAll(QString());
    return lines.join(u'\n');
}

} // namespace quorvin
