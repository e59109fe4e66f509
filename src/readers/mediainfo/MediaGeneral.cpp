// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/MediaGeneral.h"

#include "filefacts/Durations.h"
#include "filefacts/FileStream.h"
#include "pictures/Cover.h"
#include "readers/mediainfo/oMediaInfo.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <limits>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// Reads the parameters of one stream.
struct StreamReader {
    const oMediaInfo &info;
    StreamKind kind;
    quint64 number;

    QString operator()(const QString &parameter) const { return info.GetFromStream(kind, number, parameter); }
    QString codecHint() const { return info.myCodecHint(kind, number); }
};

qint32 saturated(qint64 value)
{
    return static_cast<qint32>(
        std::clamp<qint64>(value, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
}

QString firstNotEmpty(std::initializer_list<QString> texts)
{
    const auto *found = std::ranges::find_if(texts, [](const QString &text) { return !text.isEmpty(); });
    return found == texts.end() ? QString() : *found;
}

QString withSuffix(const QString &text, QLatin1String suffix)
{
    return text.isEmpty() ? QString() : text + suffix;
}

QStringList videoPieces(const StreamReader &read)
{
    const QString width = read(u"Width"_s);
    const QString height = read(u"Height"_s);
    return {firstNotEmpty({read.codecHint(), read(u"Format"_s)}),
            width.isEmpty() || height.isEmpty() ? QString() : width + u'x' + height,
            withSuffix(read(u"FrameRate"_s), " fps"_L1),
            firstNotEmpty({read(u"BitRate/String"_s), read(u"BitRate_Nominal/String"_s)}),
            read(u"Language/String"_s)};
}

QString channels(const QString &count)
{
    if (count == "1"_L1)
        return u"Mono"_s;
    return count == "2"_L1 ? u"Stereo"_s : withSuffix(count, " ch"_L1);
}

QStringList audioPieces(const StreamReader &read)
{
    const QString bitRate = read(u"BitRate/String"_s);
    return {firstNotEmpty({read.codecHint(), read(u"CodecID/Hint"_s), read(u"Format"_s)}),
            // The blank stands without a mode too.
            bitRate.isEmpty() ? QString() : bitRate + u' ' + read(u"BitRate_Mode"_s),
            read(u"SamplingRate/String"_s), channels(read(u"Channel(s)"_s)), read(u"Language/String"_s)};
}

QStringList textPieces(const StreamReader &read)
{
    return {read(u"Format"_s), read(u"Language/String"_s)};
}

qint64 chapterCount(const StreamReader &read)
{
    return qint64{saturated(Utilities::leadingInteger(read(u"Chapters_Pos_End"_s)))}
    - saturated(Utilities::leadingInteger(read(u"Chapters_Pos_Begin"_s)));
}

QStringList menuPieces(const StreamReader &read)
{
    return {QString::number(chapterCount(read)) + " chapters"_L1};
}

QStringList otherPieces(const StreamReader &read)
{
    return {read(u"Type"_s)};
}

/// How a kind of stream shows on the General tab.
struct LineForm {
    StreamKind kind;
    QLatin1String label;
    QStringList (*pieces)(const StreamReader &read);
    bool hasTitle;
};

constexpr std::array kLineForms{
    LineForm{StreamKind::Video, "Video"_L1, videoPieces, true},
    LineForm{StreamKind::Audio, "Audio"_L1, audioPieces, true},
    LineForm{StreamKind::Text, "Subtitles"_L1, textPieces, true},
    LineForm{StreamKind::Menu, "Menu"_L1, menuPieces, false},
    LineForm{StreamKind::Other, "Other"_L1, otherPieces, true},
};

QString joinedPieces(const QStringList &pieces)
{
    QStringList present;
    for (const QString &piece : pieces)
        addStringIfNotEmpty(present, piece);
    return present.join(", "_L1);
}

StyledText lineText(const LineForm &form, const StreamReader &read)
{
    const QString line = joinedPieces(form.pieces(read));
    const QString title = form.hasTitle ? read(u"Title"_s) : QString();
    if (title.isEmpty())
        return {line};
    const QString before = line + " - "_L1;
    return {before + title, before.size()};
}

/// The menu that the library finds in a program stream without chapters stands for nothing.
bool isEmptyProgramMenu(const LineForm &form, const StreamReader &read, const QString &format)
{
    return form.kind == StreamKind::Menu && format == "MPEG-PS"_L1 && chapterCount(read) <= 0;
}

void addLines(const LineForm &form, const oMediaInfo &info, GeneralFacts &general)
{
    const qint64 count = info.numberOfStreams(form.kind);
    for (qint64 i = 0; i < count; ++i) {
        const StreamReader read{info, form.kind, static_cast<quint64>(i)};
        if (isEmptyProgramMenu(form, read, general.format))
            continue;
        const QString label
            = count == 1 ? QString(form.label) : form.label + " #"_L1 + QString::number(i + 1);
        general.lines.push_back(
            {streamKindToHumanString(form.kind), label, lineText(form, read), read.number});
    }
}

/// Covers come as base64, several joined by " / "; the first one counts.
Cover firstCover(const oMediaInfo &info)
{
    const QString covers
        = firstNotEmpty({info.GetGeneral(0, u"Cover_Data"_s), info.GetGeneral(0, u"Thumbnail_Data"_s)});
    if (covers.isEmpty())
        return {};
    const qsizetype end = covers.indexOf(" / "_L1);
    const auto decoded
        = QByteArray::fromBase64Encoding(QStringView(covers).left(end < 0 ? covers.size() : end).toLatin1(),
                                         QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? coverOfData(*decoded) : Cover();
}

} // namespace

void prepareMediainfoGeneral(const oMediaInfo &info, const RegularFile &file, const RecordOptions &options,
                             const DigestWatch &watch, RecordContents &record)
{
    const qint64 duration = Utilities::leadingInteger(info.GetGeneral(0, u"Duration"_s));
    record.duration = saturated(duration);
    record.isVideo = info.numberOfStreams(StreamKind::Video) > 0;
    record.isAudio = info.numberOfStreams(StreamKind::Audio) > 0;

    GeneralFacts &general = record.general;
    static_cast<FileFacts &>(general) = getFileInfo(file, options, watch);
    general.format = firstNotEmpty({info.GetGeneral(0, u"Format"_s), u"Unknown Format"_s});
    general.formatProfile = info.GetGeneral(0, u"Format_Profile"_s);
    general.duration = Utilities::formatDurationUpToSeconds(duration);
    general.bitrate = info.GetGeneral(0, u"OverallBitRate/String"_s);
    general.imageSize = QString();
    if (options.keepCover)
        general.cover = firstCover(info);
    general.container = joinedPieces({general.format, general.filesize, general.duration, general.bitrate});
    for (const LineForm &form : kLineForms) {
        if (form.kind != StreamKind::Other || options.otherTracksInGeneral)
            addLines(form, info, general);
    }
}

} // namespace quorvin
