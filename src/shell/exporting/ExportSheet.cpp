// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/exporting/ExportSheet.h"

#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LiveSettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <array>

namespace quorvin {

namespace {

constexpr int kSeparateFiles = 0; ///< as `lastExportType` stores it
constexpr int kCompoundFile = 1;

struct FormatName {
    const char *key;
    const char *name;
};

constexpr std::array kFormatNames{
    FormatName{"txt", QT_TRANSLATE_NOOP("ExportSheet", "Text")},
    FormatName{"html", QT_TRANSLATE_NOOP("ExportSheet", "HTML")},
    FormatName{"csv", QT_TRANSLATE_NOOP("ExportSheet", "CSV")},
    FormatName{"xml", QT_TRANSLATE_NOOP("ExportSheet", "XML")},
    FormatName{"json", QT_TRANSLATE_NOOP("ExportSheet", "JSON")},
    FormatName{"plist", QT_TRANSLATE_NOOP("ExportSheet", "Property List (binary)")},
};

QString countText(std::size_t fileCount, std::size_t asked)
{
    QString count = groupedCount(static_cast<qint64>(fileCount));
    if (fileCount == asked)
        return count;
    return ExportSheet::tr("%1 of %2; nothing is known of the others")
        .arg(count, groupedCount(static_cast<qint64>(asked)));
}

} // namespace

ExportSheet::ExportSheet(LiveSettings &settings, std::size_t fileCount, std::size_t asked, QWidget *parent)
    : QDialog(parent),
      _settings(settings),
      _format(new QComboBox),
      _compound(new QRadioButton(tr("One &document"))),
      _separate(new QRadioButton(tr("One for &each file"))),
      _skipFilePrivate(new QCheckBox(tr("&Leave out facts about your own disk")))
{
    setWindowTitle(tr("Export"));
    setWindowModality(Qt::WindowModal);
    for (const FormatName &format : kFormatNames)
        _format->addItem(QCoreApplication::translate("ExportSheet", format.name),
                         QString::fromLatin1(format.key));
    _format->setCurrentIndex(std::max(_format->findData(settings.string(Setting::lastExportFormat)), 0));
    const bool compound = settings.integer(Setting::lastExportType) != kSeparateFiles;
    (compound ? _compound : _separate)->setChecked(true);
    _compound->setEnabled(fileCount > 1);
    _separate->setEnabled(fileCount > 1);
    _skipFilePrivate->setChecked(settings.boolean(Setting::lastExportWithoutFilePrivate));
    _skipFilePrivate->setToolTip(plainTip(tr("Such as the folder, tags and comments of each file")));

    auto *form = new QFormLayout;
    form->addRow(tr("&Format:"), _format);
    form->addRow(tr("Files:"), plainLabel(countText(fileCount, asked)));
    form->addRow(tr("Write:"), _compound);
    form->addRow(QString(), _separate);
    form->addRow(QString(), _skipFilePrivate);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    buttons->button(QDialogButtonBox::Cancel)->setIcon({});
    QPushButton *go = buttons->addButton(tr("E&xport…"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportSheet::reject);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(16);
    column->addLayout(form);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    go->setDefault(true);
    _format->setFocus();
}

QString ExportSheet::format() const
{
    return _format->currentData().toString();
}

bool ExportSheet::compound() const
{
    return _compound->isChecked();
}

bool ExportSheet::skipFilePrivate() const
{
    return _skipFilePrivate->isChecked();
}

void ExportSheet::accept()
{
    _settings.set(Setting::lastExportFormat, format());
    _settings.set(Setting::lastExportType, compound() ? kCompoundFile : kSeparateFiles);
    _settings.set(Setting::lastExportWithoutFilePrivate, skipFilePrivate());
    QDialog::accept();
}

} // namespace quorvin
