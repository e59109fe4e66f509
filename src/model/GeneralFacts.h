// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Cover.h"
#include "model/StyledText.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quorvin {

/// What the file system tells of a file. The names are those of the record's vocabulary.
struct FileFacts {
    QString filesize; ///< size in the units of the record's size rule
    QString filesizeinbytes; ///< decimal digits
    QString localizedModificationDate; ///< long date, medium time; "" when unknown, as the three below
    QString localizedCreationDate;
    QString modificationDate; ///< 2021-03-04T05:06:07+01:00
    QString creationDate;
    std::optional<QString> fileKind; ///< description of the type
    std::optional<QString> fileUTI; ///< identifier of the type: its MIME name
    std::optional<QString> finderComment;
    std::optional<QString> fileLabelName; ///< a coloured label; no file has one here
    std::optional<QString> fileFrom; ///< where it was downloaded from, one address a line
    std::optional<QString> fileAuthors;
    std::optional<QString> fileFromDate; ///< when it was downloaded, localized
    std::optional<QString> fileTagNames;
    std::optional<QString> md5; ///< lower-case hex, as below
    std::optional<QString> sha1;

    bool operator==(const FileFacts &) const = default;
};

/// A line of the General tab: a stream of a media file, or a photographic fact of an image.
struct GeneralLine {
    QString key; ///< human name of the stream's kind; with `streamIndex` it leads to the stream's group. ""
                 ///< in a line that stands for no stream
    QString name; ///< label
    StyledText value;
    quint64 streamIndex = 0; ///< counted from 0 within its kind
    bool isLocation = false; ///< the value is where the picture was taken

    bool isMediaStream() const { return !key.isEmpty(); }
    bool operator==(const GeneralLine &) const = default;
};

/// The summary of a file: its file facts and what its reader puts on the General tab.
struct GeneralFacts : FileFacts {
    QString format;
    std::optional<QString> formatProfile; ///< absent for images
    QString duration; ///< hh:mm:ss, "" when unknown
    QString bitrate; ///< the library's text, "" when unknown
    std::optional<QString> imageSize; ///< "" for media; absent for an image of unknown size
    std::optional<QString> imageSizeMP; ///< the size of an image, with its megapixels where they count
    std::optional<QString> thumbCount; ///< decimal number of an image's previews
    std::optional<double> latitude; ///< of an image, in degrees, north positive
    std::optional<double> longitude; ///< likewise, east positive
    Cover cover; ///< as the reader hands it on; empty when there is none, or when it is packed
    QByteArray packedCover; ///< encoded by this process, never by the file; empty when there is none
    QString container; ///< format, size, duration and bit rate in one line; "" for images
    std::vector<GeneralLine> lines;

    bool operator==(const GeneralFacts &) const = default;
};

} // namespace quorvin
