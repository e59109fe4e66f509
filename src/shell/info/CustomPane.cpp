// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/info/CustomPane.h"

#include "platform/NativePath.h"
#include "shell/desktop/AccessibleRole.h"
#include "shell/desktop/PlainText.h"
#include "shell/info/ExtSearchBar.h"
#include "shell/info/RawReports.h"
#include "shell/info/ReportText.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/LiveSettings.h"

#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <array>

namespace quorvin {

namespace {

constexpr int kStepMilliseconds = 150;
constexpr int kWaitMilliseconds = 400; ///< short work never flashes

struct ReportChoice {
    const char *text; ///< untranslated
    const char *source;
};

constexpr std::array kReports{
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "What the libraries differ on"), "engines"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "MediaInfo"), "mediainfo"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "MediaInfo, complete"), "mediainfo-complete"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "exiftool"), "exiftool"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "XMP packet"), "xmp-arranged"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "exiv2"), "exiv2"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "exiv2, structure"), "exiv2-structure"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "Items of MP4 and QuickTime"), "iso-metadata"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "Picture as the system reads it"), "system-image"},
    ReportChoice{QT_TRANSLATE_NOOP("Reports", "MediaInfo, trace"), "mediainfo-trace"},
};

} // namespace

CustomPane::CustomPane(LiveSettings &settings, QWidget *parent)
    : Pane(parent),
      _settings(settings),
      _source(new QComboBox),
      _state(plainLabel()),
      _action(new QPushButton),
      _wrap(new QPushButton(tr("&Wrap Lines"))),
      _copy(new QPushButton(tr("Copy A&ll"))),
      _save(new QPushButton(tr("Save &As…"))),
      _searchBar(new ExtSearchBar),
      _report(new ReportText)
{
    for (const ReportChoice &choice : kReports)
        _source->addItem(QCoreApplication::translate("Reports", choice.text), QLatin1String(choice.source));
    setChoiceName(_source, tr("Which report"));
    _report->view().setAccessibleName(tr("Report"));
    _wrap->setCheckable(true);
    _report->setWrapsLines(false);
    layOut();
    connectSearch();
    _pause.setSingleShot(true);
    connect(&_pause, &QTimer::timeout, this, &CustomPane::ask);
    connect(&_wait, &QTimer::timeout, this, &CustomPane::showWait);
    connect(_source, &QComboBox::currentIndexChanged, this, [this] { refill(); });
    connect(_action, &QPushButton::clicked, this, &CustomPane::cancel);
    connect(_wrap, &QPushButton::toggled, _report, &ReportText::setWrapsLines);
    connect(_copy, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(_report->text()); });
    connect(_save, &QPushButton::clicked, this, &CustomPane::saveAs);
    connect(&_report->view(), &QPlainTextEdit::selectionChanged, this, &Pane::selectionDidChange);
}

void CustomPane::layOut()
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(8, 8, 8, 8);
    row->setSpacing(8);
    row->addWidget(_source);
    row->addWidget(_state, 1);
    for (QPushButton *button : {_action, _wrap, _copy, _save})
        row->addWidget(button);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(row);
    column->addWidget(_searchBar);
    column->addWidget(_report, 1);
    _action->hide();
}

void CustomPane::connectSearch()
{
    connect(_searchBar, &ExtSearchBar::searchWanted, this, [this] { _report->count(_searchBar->text()); });
    connect(_searchBar, &ExtSearchBar::nextWanted, this, &CustomPane::findNext);
    connect(_searchBar, &ExtSearchBar::closeWanted, this, [this] {
        _searchBar->hideAnimated();
        _report->view().setFocus();
    });
    connect(_report, &ReportText::counted, _searchBar, &ExtSearchBar::setHits);
}

void CustomPane::setPath(const QString &path)
{
    if (path == _path)
        return;
    _path = path;
    refill();
}

void CustomPane::showReport(const QString &source)
{
    _source->setCurrentIndex(_source->findData(source));
}

/// The file may have changed since it was asked for last, and so a record that comes anew asks once more.
void CustomPane::fill(const QuorvinData *)
{
    _run.cancel();
    _wait.stop();
    _report->setText({});
    _copy->setEnabled(false);
    _save->setEnabled(false);
    showState(_path.isEmpty() ? tr("The file is not read yet.") : QString());
    if (_path.isEmpty())
        _pause.stop();
    else
        _pause.start(kStepMilliseconds);
}

void CustomPane::ask()
{
    _since.start();
    _wait.start(kWaitMilliseconds);
    _run.start("Report", reportWork(_settings.values(), _path, _source->currentData().toString()),
               [this](const Expected<QString> &report) { take(report); });
}

void CustomPane::take(const Expected<QString> &report)
{
    _wait.stop();
    if (!report)
        return showState(tr("No report: %1").arg(report.error().description), tr("&Try Again"));
    _report->setText(*report);
    _copy->setEnabled(!report->isEmpty());
    _save->setEnabled(!report->isEmpty());
    showState(report->isEmpty() ? tr("It has nothing to say of this file.") : QString());
    if (_searchBar->isOpen())
        _report->count(_searchBar->text());
    Q_EMIT selectionDidChange();
}

void CustomPane::showWait()
{
    constexpr int kSecond = 1000;
    _wait.start(kSecond);
    const qint64 seconds = _since.elapsed() / kSecond;
    showState(seconds < 2 ? tr("Reading…") : tr("Reading… %1 s").arg(seconds), tr("&Cancel"));
}

void CustomPane::cancel()
{
    if (!_run.isUnderWay())
        return refill();
    _run.cancel();
    _wait.stop();
    showState(tr("Cancelled."), tr("&Try Again"));
}

void CustomPane::showState(const QString &text, const QString &action)
{
    _state->setText(text);
    _action->setText(action);
    _action->setVisible(!action.isEmpty());
}

void CustomPane::saveAs()
{
    auto *dialog = makeFileDialog(this, tr("Save Report"), _settings);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->selectFile(lastPathComponent(_path) + QLatin1String(".txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &CustomPane::saveTo);
    dialog->open();
}

void CustomPane::saveTo(const QString &path)
{
    _saving.start(
        "SaveReport",
        [text = _report->text(), path](const RunControl &control) {
            return writeReport(text, path, control.stop());
        },
        [this, name = lastPathComponent(path)](const Expected<void> &saved) {
            showState(saved ? tr("Saved “%1”.").arg(name)
                            : tr("“%1” was not saved: %2").arg(name, saved.error().description));
        });
}

bool CustomPane::canCopy() const
{
    return _report->view().hasFocus() && _report->view().textCursor().hasSelection();
}

void CustomPane::copy() const
{
    _report->view().copy();
}

void CustomPane::selectAll()
{
    _report->view().selectAll();
}

void CustomPane::find()
{
    _searchBar->showAnimated();
    _report->count(_searchBar->text());
}

bool CustomPane::isSearching() const
{
    return _searchBar->isOpen() && !_searchBar->text().isEmpty();
}

void CustomPane::findNext(bool backwards)
{
    if (isSearching())
        _report->find(_searchBar->text(), backwards);
    else
        find();
}

void CustomPane::describe(CommandState &state) const
{
    state.canFind = !_report->text().isEmpty();
}

void CustomPane::applyLook(const RowLook &look)
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(look.font.pointSizeF());
    _report->view().setFont(font);
}

} // namespace quorvin
