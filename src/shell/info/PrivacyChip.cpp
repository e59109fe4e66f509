// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/PrivacyChip.h"

#include "shell/desktop/PlainText.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <utility>

namespace quorvin {

namespace {

constexpr std::array kWordsOfKinds{
    std::pair{PrivateKind::Position, QT_TRANSLATE_NOOP("PrivacyChip", "position")},
    std::pair{PrivateKind::Place, QT_TRANSLATE_NOOP("PrivacyChip", "place")},
    std::pair{PrivateKind::SerialNumber, QT_TRANSLATE_NOOP("PrivacyChip", "serial number")},
    std::pair{PrivateKind::Owner, QT_TRANSLATE_NOOP("PrivacyChip", "owner")},
    std::pair{PrivateKind::Author, QT_TRANSLATE_NOOP("PrivacyChip", "author")},
    std::pair{PrivateKind::Person, QT_TRANSLATE_NOOP("PrivacyChip", "persons shown")},
    std::pair{PrivateKind::Contact, QT_TRANSLATE_NOOP("PrivacyChip", "contact")},
    std::pair{PrivateKind::Origin, QT_TRANSLATE_NOOP("PrivacyChip", "origin")},
};

} // namespace

QString privateKindsInWords(const std::vector<PrivateKind> &kinds)
{
    QStringList words;
    for (const PrivateKind kind : kinds) {
        const auto *row
            = std::ranges::find_if(kWordsOfKinds, [&](const auto &pair) { return pair.first == kind; });
        if (row != kWordsOfKinds.end())
            words.append(QCoreApplication::translate("PrivacyChip", row->second));
    }
    return words.join(QStringLiteral(", "));
}

PrivacyChip::PrivacyChip(QWidget *parent)
    : QWidget(parent), _label(plainLabel(tr("Gives away"))), _kinds(plainLabel()), _strip(new QToolButton)
{
    _label->setForegroundRole(QPalette::PlaceholderText);
    _label->setBuddy(_kinds);
    _kinds->setWordWrap(true);
    _kinds->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    _strip->setText(tr("Remove…"));
    _strip->setToolTip(plainTip(tr("Take it out of the file, and see first what goes")));
    _strip->setFocusPolicy(Qt::StrongFocus);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(_label);
    row->addWidget(_kinds, 1);
    row->addWidget(_strip);
    connect(_strip, &QToolButton::clicked, this, &PrivacyChip::stripWanted);
    setLabelsAlignment(Qt::AlignTrailing);
    hide();
}

void PrivacyChip::setKinds(const std::vector<PrivateKind> &kinds, bool canBeRemoved)
{
    _kinds->setText(privateKindsInWords(kinds));
    _strip->setVisible(canBeRemoved);
    setVisible(!kinds.empty());
}

void PrivacyChip::setLabelsAlignment(Qt::Alignment alignment)
{
    _label->setAlignment(alignedInWindow(alignment | Qt::AlignVCenter));
}

void PrivacyChip::setLabelsWidth(int width)
{
    _label->setMinimumWidth(width);
}

QString PrivacyChip::label() const
{
    return _label->text();
}

void PrivacyChip::setGap(int gap)
{
    layout()->setSpacing(gap);
}

} // namespace quorvin
