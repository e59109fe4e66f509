// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/PictureExtraction.h"

#include "model/Log.h"
#include "model/QuorvinData.h"
#include "pictures/HeifImage.h"
#include "platform/FileKinds.h"
#include "platform/NativePath.h"
#include "readers/image/Exiv2Library.h"
#include "readers/image/HeifReader.h"
#include "readers/mediainfo/oMediaInfo.h"
#include "surgery/AttachmentFiles.h"

#include <QBuffer>

#include <algorithm>
#include <optional>
#include <utility>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMostPixels = 50'000'000; ///< of a thumbnail that has to be decoded

struct NamedCover {
    QString name;
    QString base64;
};

/// The library joins what it tells of several covers.
QStringList listOf(const oMediaInfo &info, const QString &parameter)
{
    const QString text = info.GetGeneral(0, parameter);
    return text.isEmpty() ? QStringList() : text.split(u" / "_s);
}

QString coverName(const QString &type, const QString &mimeType)
{
    const QString extension = fileExtensionFromMimeType(mimeType);
    return (type.isEmpty() ? u"Cover"_s : type) + u'.' + (extension.isEmpty() ? u"jpg"_s : extension);
}

std::vector<NamedCover> coversOf(const oMediaInfo &info)
{
    const QStringList covers = listOf(info, u"Cover_Data"_s);
    const QStringList types = info.GetGeneral(0, u"Cover_Type"_s).split(u" / "_s);
    const QStringList mimeTypes = info.GetGeneral(0, u"Cover_Mime"_s).split(u" / "_s);
    // Else nobody can tell which is of which.
    const bool areTold = covers.size() == types.size() && covers.size() == mimeTypes.size();
    std::vector<NamedCover> all;
    for (qsizetype i = 0; i < covers.size(); ++i)
        all.push_back({areTold ? coverName(types[i], mimeTypes[i]) : u"Cover.jpg"_s, covers[i]});
    for (const QString &thumbnail : listOf(info, u"Thumbnail_Data"_s))
        all.push_back({u"Cover.jpg"_s, thumbnail});
    return all;
}

QString previewName(const QString &path, std::size_t number, const QString &extension)
{
    return u"%1 #%2%3"_s.arg(pathStem(path), QString::number(number), extension);
}

void addPreviews(const Exiv2::Image &image, const QString &path, AttachmentFiles &files)
{
    const Exiv2::PreviewManager manager(image);
    std::size_t number = 0;
    for (const Exiv2::PreviewProperties &properties : manager.getPreviewProperties()) {
        const QString name = previewName(path, ++number, QString::fromStdString(properties.extension_));
        try {
            const Exiv2::PreviewImage preview = manager.getPreviewImage(properties);
            files.addFile(name, {preview.pData(), static_cast<qsizetype>(preview.size())});
        } catch (const std::exception &error) {
            files.addProblem(name, QString::fromLocal8Bit(error.what()));
        }
    }
}

Expected<SavedFiles> saveHeifThumbnails(const QString &path, const QString &folder)
{
    const auto image = HeifImage::open(path);
    if (!image)
        return tl::unexpected(image.error());
    const auto sizes = image->thumbnailSizes();
    if (!sizes)
        return tl::unexpected(sizes.error());
    AttachmentFiles files(folder, u"preview"_s);
    std::size_t number = 0;
    for (const QSize size : *sizes) {
        const QString name = previewName(path, ++number, u".png"_s);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        const auto picture = image->decoded(std::max(size.width(), size.height()), kMostPixels);
        if (picture && picture->save(&buffer, "PNG"))
            files.addFile(name, bytes);
        else
            files.addProblem(name, picture ? u"it can not be written"_s : picture.error().description);
    }
    return files.finish();
}

/// An image whose metadata are read; null for a file that is none.
std::unique_ptr<Exiv2::Image> readImage(const QString &path)
try {
    const exiv2::XmpSession session;
    auto image = exiv2::openImage(path);
    if (image)
        image->readMetadata();
    return image && image->mimeType() != "image/generic" ? std::move(image) : nullptr;
} catch (const std::exception &error) {
    qCDebug(lcLibraries).noquote() << "exiv2:" << error.what();
    return nullptr;
}

Expected<SavedFiles> savePreviewsOfImage(const Exiv2::Image &image, const QString &path,
                                         const QString &folder)
{
    if (isHeifType(QString::fromStdString(image.mimeType())))
        return saveHeifThumbnails(path, folder);
    AttachmentFiles files(folder, u"preview"_s);
    try {
        addPreviews(image, path, files);
    } catch (const std::exception &error) {
        files.addProblem(lastPathComponent(path), QString::fromLocal8Bit(error.what()));
    }
    return files.finish();
}

} // namespace

Expected<SavedFiles> saveCoversOfFile(const QString &path, const QString &folder)
{
    oMediaInfo info;
    if (const auto opened = info.Open(path); !opened)
        return tl::unexpected(opened.error());
    AttachmentFiles files(folder, u"picture"_s);
    for (const NamedCover &cover : coversOf(info)) {
        const auto bytes = QByteArray::fromBase64Encoding(cover.base64.toLatin1(),
                                                          QByteArray::AbortOnBase64DecodingErrors);
        if (bytes && !(*bytes).isEmpty())
            files.addFile(cover.name, *bytes);
    }
    return files.finish();
}

Expected<SavedFiles> savePreviewsOfFile(const QString &path, const QString &folder)
{
    const auto image = readImage(path);
    return image ? savePreviewsOfImage(*image, path, folder) : failure(u"Not an image"_s);
}

Expected<SavedFiles> savePicturesOfFile(const QString &path, const QString &folder)
{
    const auto image = readImage(path);
    return image ? savePreviewsOfImage(*image, path, folder) : saveCoversOfFile(path, folder);
}

bool hasPictures(const QuorvinData &record)
{
    const GeneralFacts &general = record.generalInfo();
    return record.isImage() ? general.thumbCount && general.thumbCount->toInt() > 0
                            : !general.packedCover.isEmpty();
}

} // namespace quorvin
