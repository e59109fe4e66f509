// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalSheet.h"

#include "platform/NativePath.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/PlainText.h"
#include "shell/desktop/ValueDelegate.h"
#include "shell/session/FileDialogs.h"
#include "shell/session/LiveSettings.h"
#include "shell/surgery/ReceiptModel.h"
#include "shell/surgery/RemovalWords.h"
#include "shell/surgery/TracesOffer.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSet>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvin {

namespace {

constexpr int kSheetMargin = 16;
constexpr QSize kFirstSheetSize(680, 600);
constexpr int kReceiptNamesWidth = 260;
constexpr int kPlanMilliseconds = 100;

/// The folders of the files, each once: what a reader has to see.
QStringList foldersOf(const std::vector<FilelistItemPtr> &files)
{
    QStringList folders;
    for (const FilelistItemPtr &file : files) {
        const QString folder = QFileInfo(file->filename()).path();
        if (folders.isEmpty() || folders.last() != folder)
            folders.append(folder);
    }
    folders.removeDuplicates();
    return folders;
}

} // namespace

RemovalSheet::RemovalSheet(LiveSettings &settings, const RemovalFiles &files, const oEXIV2Metadata &options,
                           bool isFixed, QWidget *parent)
    : QDialog(parent),
      _settings(settings),
      _form(new RemovalForm(files, options, isFixed)),
      _state(plainLabel()),
      _progress(new QProgressBar),
      _traces(new TracesOffer),
      _receipts(new ReceiptModel(this)),
      _list(new QTreeView),
      _remove(new QPushButton(tr("&Remove"))),
      _save(new QPushButton(tr("&Save Receipt…"))),
      _leave(new QPushButton)
{
    setWindowTitle(isFixed ? tr("Remove Position") : tr("Remove Metadata"));
    setWindowModality(Qt::WindowModal);
    layOut();
    _planDelay.setSingleShot(true);
    _planDelay.setInterval(kPlanMilliseconds);
    connect(&_planDelay, &QTimer::timeout, this, &RemovalSheet::plan);
    connect(_form, &RemovalForm::changed, this, [this] {
        _remove->setEnabled(false);
        _planDelay.start();
    });
    connect(&_run, &BackgroundRunBase::progressed, this, [this](int done, int total) {
        _progress->setMaximum(total);
        _progress->setValue(done);
    });
    connect(_remove, &QPushButton::clicked, this, &RemovalSheet::clickDoRemoveMetaData);
    connect(_save, &QPushButton::clicked, this, &RemovalSheet::chooseReceipt);
    connect(_leave, &QPushButton::clicked, this, &RemovalSheet::reject);
    connect(_traces, &TracesOffer::cleared, this, &RemovalSheet::filesDidChange);
    showPage(Page::Plan);
    plan();
}

void RemovalSheet::layOut()
{
    _list->setModel(_receipts);
    _list->setItemDelegate(new ValueDelegate(_list));
    _list->setUniformRowHeights(true);
    _list->setTextElideMode(Qt::ElideMiddle);
    _list->setAccessibleName(tr("What comes of each image"));
    _list->header()->resizeSection(ReceiptModel::Name, kReceiptNamesWidth);
    _list->header()->setStretchLastSection(true);
    _state->setWordWrap(true);
    _progress->setAccessibleName(tr("Progress"));

    auto *buttons = new QDialogButtonBox;
    buttons->addButton(_save, QDialogButtonBox::ActionRole);
    buttons->addButton(_leave, QDialogButtonBox::RejectRole);
    buttons->addButton(_remove, QDialogButtonBox::ActionRole);
    for (QPushButton *button : {_remove, _save})
        button->setAutoDefault(false);
    _leave->setDefault(true);

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(kSheetMargin, kSheetMargin, kSheetMargin, kSheetMargin);
    column->setSpacing(kSheetMargin);
    column->addWidget(_form);
    column->addWidget(_state);
    column->addWidget(_progress);
    column->addWidget(_traces);
    column->addWidget(_list, 1);
    column->addWidget(buttons);
    resize(kFirstSheetSize);
}

void RemovalSheet::showPage(Page page)
{
    _page = page;
    _form->setVisible(page == Page::Plan);
    _progress->setVisible(page == Page::Work);
    _remove->setVisible(page == Page::Plan);
    _save->setVisible(page == Page::Receipt);
    _leave->setEnabled(true);
    _leave->setText(page == Page::Plan ? tr("Cancel") : page == Page::Work ? tr("S&top") : tr("&Close"));
    _leave->setFocus();
}

RemovalTask RemovalSheet::task() const
{
    RemovalTask task{.setup
                     = analysisSetupFrom(_settings.values(), std::make_shared<RootSet>(foldersOf(_files)))};
    for (const FilelistItemPtr &file : _files)
        task.paths.push_back(file->filename());
    task.options = _form->options();
    task.keepsTimes = _form->keepsTimes();
    task.allowsHardLinks = _form->allowsHardLinks();
    return task;
}

void RemovalSheet::plan()
{
    _planDelay.stop();
    _run.cancel();
    _remove->setEnabled(false);
    if (!_form->removesAnything()) {
        showReceipts({}, true);
        _state->setText(tr("Choose what is to be removed."));
        return;
    }
    _files = _form->images();
    _state->setText(tr("Looking what would go…"));
    _run.start(
        "RemovalPlan", [task = task()](const RunControl &control) { return plannedReceipts(task, control); },
        [this](std::vector<RemovalReceipt> receipts) { takePlan(std::move(receipts)); });
}

void RemovalSheet::takePlan(std::vector<RemovalReceipt> receipts)
{
    _remove->setEnabled(std::ranges::any_of(
        receipts, [](const RemovalReceipt &receipt) { return !receipt.result.removed.empty(); }));
    showReceipts(std::move(receipts), true);
}

void RemovalSheet::clickDoRemoveMetaData()
{
    showPage(Page::Work);
    _state->setText(tr("Removing from %1. What was not begun with when it is stopped stays as it is.")
                        .arg(countOfImages(_files.size())));
    _progress->setMaximum(static_cast<int>(_files.size()));
    _progress->setValue(0);
    RemovalTask work = task();
    _stop = {};
    work.stop = _stop.get_token();
    _run.start(
        "Removal",
        [work = std::move(work)](const RunControl &control) { return removeFromFiles(work, control); },
        [this](std::vector<RemovalReceipt> receipts) { takeReceipts(std::move(receipts)); });
}

void RemovalSheet::takeReceipts(std::vector<RemovalReceipt> receipts)
{
    QStringList written;
    for (const RemovalReceipt &receipt : receipts) {
        if (receipt.isWritten())
            written.append(receipt.path);
    }
    showReceipts(std::move(receipts), false);
    showPage(Page::Receipt);
    lookForTraces();
    filesDidChange(written);
}

/// Of all but those that stay as they were for a reason.
void RemovalSheet::lookForTraces()
{
    QStringList paths;
    for (const RemovalReceipt &receipt : _receipts->receipts()) {
        if (receipt.failure.isEmpty())
            paths.append(receipt.path);
    }
    _traces->lookAt(paths);
}

void RemovalSheet::filesDidChange(const QStringList &paths)
{
    const QSet<QString> changed(paths.begin(), paths.end());
    std::vector<FilelistItemPtr> files;
    std::ranges::copy_if(_files, std::back_inserter(files),
                         [&](const FilelistItemPtr &file) { return changed.contains(file->filename()); });
    if (!files.empty())
        Q_EMIT removed(files);
}

void RemovalSheet::showReceipts(std::vector<RemovalReceipt> receipts, bool isPlan)
{
    QStringList names;
    for (std::size_t i = 0; i < receipts.size(); ++i)
        names.append(_files[i]->prefixedPath());
    _state->setText(receiptsInWords(receipts, isPlan, _files.size()));
    _receipts->setReceipts(std::move(receipts), std::move(names), isPlan);
    if (_receipts->rowCount() == 1)
        _list->expandAll();
}

void RemovalSheet::reject()
{
    if (_page != Page::Work)
        return QDialog::reject();
    _stop.request_stop();
    _leave->setEnabled(false);
    _state->setText(tr("Stopping behind the image at hand…"));
}

void RemovalSheet::chooseReceipt()
{
    auto *dialog = makeFileDialog(this, tr("Save Receipt"), _settings);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({tr("Text (*.txt)"), tr("JSON (*.json)")});
    dialog->setDefaultSuffix(QStringLiteral("txt"));
    connect(dialog, &QFileDialog::filterSelected, dialog, [dialog](const QString &filter) {
        dialog->setDefaultSuffix(filter.contains(QLatin1String("json")) ? QStringLiteral("json")
                                                                        : QStringLiteral("txt"));
    });
    dialog->selectFile(QStringLiteral("receipt.txt"));
    connect(dialog, &QFileDialog::fileSelected, this, &RemovalSheet::saveReceipt);
    dialog->open();
}

void RemovalSheet::saveReceipt(const QString &path)
{
    _saving.start(
        "Receipt",
        [path, receipts = _receipts->receipts()](const RunControl &) {
            return writeReceipts(path, receipts, false);
        },
        [this, path](const Expected<void> &saved) {
            const QString name = lastPathComponent(path);
            if (saved)
                _state->setText(tr("Saved the receipt to “%1”.").arg(name));
            else
                plainMessage(this, tr("Save Receipt"), tr("“%1” could not be written.").arg(name),
                             saved.error().description, QMessageBox::Close)
                    ->open();
        });
}

} // namespace quorvin
