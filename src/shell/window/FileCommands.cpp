// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/FileCommands.h"

#include "filefacts/ExtendedAttributes.h"
#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/FileManager.h"
#include "shell/desktop/PlainText.h"
#include "shell/filelist/FilelistController.h"
#include "shell/info/ChangeableRows.h"
#include "shell/info/InfoView.h"
#include "shell/outline/ExtendedOutline.h"
#include "shell/surgery/ExtractionController.h"
#include "shell/window/MainView.h"
#include "shell/window/StatusLine.h"
#include "surgery/PictureExtraction.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>

namespace quorvin {

FileCommands::FileCommands(Session &session, MainView &view, FilelistController &files, QWidget *window)
    : QObject(window),
      _view(view),
      _files(files),
      _window(window),
      _extraction(new ExtractionController(session, window))
{
    connectExtraction();
    connect(&view.info(), &InfoView::coverOpened, this, &FileCommands::displayCovers);
}

void FileCommands::connectExtraction()
{
    BackgroundRunBase &run = _extraction->run();
    _view.statusLine().follow(run,
                              {tr("Stop; what is not yet saved whole is not saved"),
                               [this](int done, int total) { return _extraction->progressText(done, total); },
                               [&run] { run.cancel(); }});
    connect(_extraction, &ExtractionController::saved, this,
            [this](const QString &sentence, const QString &shown) {
                _view.statusLine().say(sentence, shown.isEmpty() ? QString() : tr("Show in Folder"),
                                       [this, shown] { revealInFinder(shown); });
            });
    connect(_extraction, &ExtractionController::temporaryFilesSaved, this,
            &FileCommands::temporaryFilesSaved);
}

void FileCommands::registerAt(CommandSet &commands)
{
    commands.on(Command::revealInFinder, [this] {
        if (const auto path = _files.worker().currentFilePath())
            revealInFinder(*path);
    });
    commands.on(Command::extractAttachments, [this] {
        if (const auto path = _files.worker().currentFilePath())
            _extraction->extract({*path}, ExtractionRequest::Kind::Attachments);
    });
    commands.on(Command::extractPreviewsAndCover, [this] {
        if (const QStringList paths = pathsWithPictures(); !paths.isEmpty())
            _extraction->extract(paths, ExtractionRequest::Kind::Pictures);
    });
    commands.on(Command::displayCovers, [this] {
        if (const QStringList paths = pathsWithPictures(); !paths.isEmpty())
            _extraction->displayCoversFrom(paths);
    });
    commands.on(Command::copyGeneralInfo, [this] {
        if (const QuorvinDataPtr record = _files.worker().currentQuorvinData())
            copyGeneralInfo(*record);
    });
    commands.on(Command::removeExtendedAttribute, [this] { removeExtendedAttribute(); });
    commands.on(Command::touchDate, [this] { touchDate(); });
}

const ExtTreeItem *FileCommands::selectedRow() const
{
    const InfoView &info = _view.info();
    const bool isShown = _files.worker().currentQuorvinData() && info.currentTab() == Tab::Extended;
    return isShown ? _view.info().outline().selectedItem() : nullptr;
}

void FileCommands::describe(CommandState &state) const
{
    const ExtTreeItem *row = selectedRow();
    const QString key = row ? row->key().value_or(QString()) : QString();
    const QuorvinDataPtr record = _files.worker().currentQuorvinData();
    // Of many files it is found out when they are asked for.
    state.hasPictures = (record && hasPictures(*record)) || _files.selectedCount() > 1;
    state.selectsAttribute = attributeOfKey(key).has_value();
    state.selectsDate = row && showsTouchDate(*row);
}

QStringList FileCommands::pathsWithPictures() const
{
    QStringList paths;
    for (const int row : _files.selectedRows()) {
        const QuorvinDataPtr record = _files.arranged().fileAt(row)->quorvinData();
        if (record && hasPictures(*record))
            paths.append(record->filename());
    }
    if (paths.isEmpty())
        _view.statusLine().say(tr("The selected files carry no pictures"));
    return paths;
}

void FileCommands::displayCovers()
{
    const QuorvinDataPtr record = _files.worker().currentQuorvinData();
    if (record && hasPictures(*record))
        _extraction->displayCoversFrom({record->filename()});
}

void FileCommands::revealInFinder(const QString &path)
{
    reveal(path, _view.statusLine(), this);
}

void FileCommands::reveal(const QString &path, StatusLine &status, QObject *context)
{
    revealInFileManager(path, context, [&status, name = lastPathComponent(path)] {
        status.say(tr("Show in Folder failed for “%1”: there is no file manager").arg(name));
    });
}

void FileCommands::copyGeneralInfo(const QuorvinData &record)
{
    const QString name = lastPathComponent(record.filename());
    QGuiApplication::clipboard()->setText(
        QStringLiteral("%1\n%2\n%3").arg(name, QString(name.size(), u'-'), record.stringForExportGeneral()));
}

void FileCommands::askFirst(const QString &title, const QString &text, const QString &explanation,
                            const QString &verb, const std::function<void()> &change)
{
    QMessageBox *question = plainMessage(_window, title, text, explanation, QMessageBox::Cancel);
    const QPushButton *button = question->addButton(verb, QMessageBox::DestructiveRole);
    question->setDefaultButton(QMessageBox::Cancel);
    question->setEscapeButton(QMessageBox::Cancel);
    connect(button, &QPushButton::clicked, this, change);
    question->open();
}

void FileCommands::removeExtendedAttribute()
{
    const ExtTreeItem *row = selectedRow();
    const auto attribute = row ? attributeOfKey(row->key().value_or(QString())) : std::nullopt;
    if (!attribute)
        return;
    const QString title = tr("Remove from the File");
    askFirst(title, tr("Remove “%1” from the file?").arg(row->name()),
             tr("It is taken from the file on the disk, and cannot be brought back."), tr("Remove"),
             [this, title, attribute] {
                 _files.changeCurrentFile(title, [attribute](const QString &path) {
                     return Utilities::removeExtendedAtrribute(*attribute, path);
                 });
             });
}

void FileCommands::touchDate()
{
    const ExtTreeItem *row = selectedRow();
    if (!row)
        return;
    const QString title = tr("Set the File's Date");
    askFirst(title, tr("Set the date of the file to “%1”?").arg(row->stringValue()),
             tr("The file on the disk then counts as modified at that time, and no longer as it does now."),
             tr("Set Date"), [this, title, date = row->stringValue()] {
                 _files.changeCurrentFile(
                     title, [date](const QString &path) { return Utilities::touchDate(date, path); });
             });
}

} // namespace quorvin
