// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/EmptyPane.h"

#include "shell/desktop/PlainText.h"
#include "shell/desktop/SymbolView.h"

#include <QEvent>
#include <QHash>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kPictureSide = 96;
constexpr double kSmallScale = 0.9;

/// A text that can be selected is laid out anew for each width that a layout tries, and it tries a few of
/// them a hundred times while a window opens: their heights are kept.
class HintLabel final : public QLabel {
public:
    int heightForWidth(int width) const override
    {
        if (_measured != text()) {
            _heights.clear();
            _measured = text();
        }
        auto known = _heights.constFind(width);
        if (known == _heights.constEnd())
            known = _heights.insert(width, QLabel::heightForWidth(width));
        return *known;
    }

protected:
    void changeEvent(QEvent *event) override
    {
        _heights.clear();
        QLabel::changeEvent(event);
    }

private:
    mutable QString _measured;
    mutable QHash<int, int> _heights;
};

QLabel *centred(QLabel *label)
{
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    return label;
}

QLabel *hintLabel()
{
    auto *label = new HintLabel;
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

EmptyPane::EmptyPane(const QString &iconName, QWidget *parent)
    : Pane(parent), _title(centred(plainLabel())), _hint(centred(hintLabel())), _column(new QVBoxLayout(this))
{
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.3);
    _title->setFont(large);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * kSmallScale);
    _hint->setFont(small);
    _hint->setForegroundRole(QPalette::PlaceholderText);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    _hint->setTextInteractionFlags(Qt::TextSelectableByMouse);
    _column->setSpacing(12);
    _column->setContentsMargins(32, 16, 32, 16);
    _column->addStretch();
    _column->addWidget(new SymbolView(iconName, kPictureSide, QIcon::Disabled), 0, Qt::AlignHCenter);
    _column->addWidget(_title);
    _column->addWidget(_hint);
    _column->addStretch();
}

void EmptyPane::setTexts(const QString &title, const QString &hint)
{
    _title->setText(title);
    _hint->setText(hint);
    _hint->setVisible(!hint.isEmpty());
}

QPushButton *EmptyPane::addButton(const QString &text, ButtonPlace place)
{
    auto *button = new QPushButton(text);
    _column->insertWidget(_column->indexOf(_hint) + place, button, 0, Qt::AlignHCenter);
    return button;
}

} // namespace quorvin
