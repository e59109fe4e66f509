// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalController.h"

#include "shell/desktop/PlainText.h"
#include "shell/surgery/RemovalSheet.h"

#include <algorithm>

namespace quorvin {

namespace {

bool isImage(const FilelistItemPtr &file)
{
    const QuorvinDataPtr record = file->quorvinData();
    return record && record->isImage();
}

} // namespace

RemovalController::RemovalController(LiveSettings &settings, QWidget *window)
    : QObject(window), _settings(settings), _window(window)
{
}

void RemovalController::menuRemoveImageMetadata(const RemovalFiles &files)
{
    open(files, _options, false);
}

void RemovalController::removeAll(const RemovalFiles &files)
{
    open(files, {true, true, true, true, true}, false);
}

void RemovalController::removeLocationInfo(const RemovalFiles &files)
{
    open(files, {.removeGPS = true}, true);
}

void RemovalController::open(const RemovalFiles &files, const oEXIV2Metadata &options, bool isFixed)
{
    if (std::ranges::none_of(files.all, isImage)) {
        plainMessage(_window, tr("Remove Metadata"), tr("None of these files is an image."),
                     tr("Metadata can be removed from images only."), QMessageBox::Close)
            ->open();
        return;
    }
    auto *sheet = new RemovalSheet(_settings, files, options, isFixed, _window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    connect(sheet, &RemovalSheet::removed, this, &RemovalController::filesDidChange);
    if (!isFixed)
        connect(sheet, &QDialog::finished, this, [this, sheet] { _options = sheet->options(); });
    sheet->open();
}

} // namespace quorvin
