// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FileIcons.h"

#include "pictures/Images.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PictureThread.h"
#include "shell/filelist/FilelistRow.h"

#include <utility>

namespace quorvin {

namespace {

constexpr int kMostUnderWay = 200;
constexpr int kLargestScale = 3;

} // namespace

FileIcons::FileIcons(QObject *parent) : QObject(parent), _pictures(kMostPictures) { }

FileIcons::Shown FileIcons::pictureFor(const FilelistItemPtr &file, const QuorvinDataPtr &record)
{
    if (!record)
        return {fileNameIcon(file->prefixedPath())};
    if (!record->generalInfo().packedCover.isEmpty()) {
        const Picture *known = _pictures.object(record.get());
        if (!known || known->record.lock() != record)
            decode(file, record);
        else if (!known->icon.isNull())
            return {known->icon, true};
    }
    const auto &type = record->generalInfo().fileUTI;
    return {type ? mimeIcon(*type) : fileNameIcon(file->prefixedPath())};
}

void FileIcons::decode(const FilelistItemPtr &file, const QuorvinDataPtr &record)
{
    // Rows that are scrolled past ask again when they come back.
    if (_underWay.size() >= kMostUnderWay || !_underWay.insert(record.get()).second)
        return;
    decodeElsewhere(
        this,
        [record] {
            return Utilities::thumbnailedImageFromData(record->generalInfo().packedCover,
                                                       FilelistRow::kPictureSide * kLargestScale);
        },
        [this, record, shown = std::weak_ptr(file)](const QImage &image) {
            _underWay.erase(record.get());
            const QIcon icon = image.isNull() ? QIcon() : QIcon(QPixmap::fromImage(image));
            _pictures.insert(record.get(), new Picture{record, icon});
            if (const FilelistItemPtr still = shown.lock())
                Q_EMIT coverReady(still);
        });
}

} // namespace quorvin
