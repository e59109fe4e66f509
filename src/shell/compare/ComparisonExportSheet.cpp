// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/compare/ComparisonExportSheet.h"

#include "comparison/ComparisonExport.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LiveSettings.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kSheetMargin = 16;

} // namespace

ComparisonExportSheet::ComparisonExportSheet(LiveSettings &settings, QWidget *parent)
    : QDialog(parent), _settings(settings), _formatPopup(new QComboBox)
{
    setWindowTitle(tr("Export Comparison"));
    setWindowModality(Qt::WindowModal);
    for (const QString &format : ComparisonExport::formats())
        _formatPopup->addItem(format.toUpper(), format);
    const QString last = settings.string(Setting::lastComparisonExportFormat);
    _formatPopup->setCurrentIndex(std::max(_formatPopup->findData(last), 0));

    auto *form = new QFormLayout;
    form->addRow(tr("&Format:"), _formatPopup);
    form->addRow(tr("Rows:"), plainLabel(tr("as they are shown")));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setIcon({});
    QPushButton *go = buttons->addButton(tr("E&xport…"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ComparisonExportSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ComparisonExportSheet::reject);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin);
    column->setSpacing(kSheetMargin);
    column->addLayout(form);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    go->setDefault(true);
    _formatPopup->setFocus();
}

QString ComparisonExportSheet::format() const
{
    return _formatPopup->currentData().toString();
}

void ComparisonExportSheet::accept()
{
    _settings.set(Setting::lastComparisonExportFormat, format());
    QDialog::accept();
}

} // namespace quorvin
