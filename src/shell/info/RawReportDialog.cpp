// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/RawReportDialog.h"

#include "platform/NativePath.h"
#include "readers/RawReport.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/RawReports.h"
#include "shell/outline/CellText.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr QSize kFirstSize(720, 520);

} // namespace

RawReportDialog::RawReportDialog(const Settings &settings, const QString &path, QWidget *parent)
    : QDialog(parent),
      _settings(settings),
      _path(path),
      _source(new QComboBox),
      _state(plainLabel()),
      _text(new QPlainTextEdit)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Raw Report: %1").arg(lastPathComponent(path)));
    for (const QString &source : rawSources()) {
        if (rawSourceTakesFiles(source))
            _source->addItem(source);
    }
    setChoiceName(_source, tr("Library"));
    _text->setReadOnly(true);
    _text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    _text->setAccessibleName(tr("Report"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(_source, &QComboBox::currentIndexChanged, this, &RawReportDialog::ask);

    auto *top = new QHBoxLayout;
    top->addWidget(_source);
    top->addWidget(_state, 1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(_text, 1);
    column->addWidget(buttons);
    resize(kFirstSize);
    _text->setFocus();
    ask();
}

void RawReportDialog::ask()
{
    _text->clear();
    _state->setText(tr("Reading…"));
    _run.start("RawReport", reportWork(_settings, _path, _source->currentText()),
               [this](const Expected<QString> &report) { take(report); });
}

void RawReportDialog::take(const Expected<QString> &report)
{
    if (!report)
        return _state->setText(tr("No report: %1").arg(report.error().description));
    _text->setPlainText(beginningOf(*report, kMostLetters));
    if (report->isEmpty())
        _state->setText(tr("It has nothing to say of this file."));
    else if (report->size() > kMostLetters)
        _state->setText(tr("The beginning; “quorvin-cli raw” gives the whole."));
    else
        _state->clear();
}

} // namespace quorvin
