// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/image/ImageProfile.h"

#include "model/Log.h"
#include "pictures/ColorProfile.h"
#include "readers/image/Exiv2Library.h"

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

QByteArray profileInExif(const Exiv2::Image &image)
{
    static const exiv2::TagNumber profile("Exif.Image.InterColorProfile");
    const auto *datum = profile.in(image.exifData());
    if (!datum || datum->size() <= 0)
        return {};
    QByteArray bytes(datum->size(), Qt::Uninitialized);
    datum->copy(reinterpret_cast<Exiv2::byte *>(bytes.data()), image.byteOrder());
    return bytes;
}

QByteArray embeddedProfile(Exiv2::Image &image)
{
    const Exiv2::DataBuf &profile = *image.iccProfile();
    return {reinterpret_cast<const char *>(profile.pData_), profile.size_};
}

} // namespace

void prepareColorProfile(Exiv2::Image &image, ImageMetadata &result)
{
    try {
        QByteArray icc = profileInExif(image);
        if (icc.isEmpty() && (result.imageType == "JPEG"_L1 || result.imageType == "PNG"_L1))
            icc = embeddedProfile(image);
        if (!icc.isEmpty())
            prepareColorProfileWithData(icc, result);
    } catch (const Exiv2::Error &error) {
        qCInfo(lcQuorvin).noquote() << "exiv2 exception in ColorProfile:" << error.what();
    }
}

void prepareColorProfileWithData(const QByteArray &icc, ImageMetadata &result)
{
    const auto profile = ColorProfile::read(icc);
    if (!profile)
        return;
    if (!profile->model.isEmpty())
        result.iccProfileColorSpaceModel = profile->model;
    if (!profile->name.isEmpty())
        result.iccProfileColorSpace = profile->name;
}

} // namespace quorvin
