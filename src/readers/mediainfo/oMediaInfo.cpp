// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/oMediaInfo.h"

#include "filefacts/Durations.h"
#include "filefacts/Sizes.h"
#include "model/FailureKind.h"
#include "model/Log.h"
#include "platform/NativePath.h"
#include "platform/UserLocale.h"
#include "readers/mediainfo/MediaInfoLibrary.h"
#include "readers/mediainfo/StandardParameters.h"

#include <QHash>

namespace quorvin {

namespace {

/// Readable names for parameters that the library leaves bare; every line ends in a line feed.
constexpr char16_t kLanguage[] = u"AttachmentCount;Number of attachments\n"
                                 "Attachment_1;Attachment #1\n"
                                 "Attachment_2;Attachment #2\n"
                                 "Attachment_3;Attachment #3\n"
                                 "Attachment_4;Attachment #4\n"
                                 "Attachment_5;Attachment #5\n"
                                 "Attachment_6;Attachment #6\n"
                                 "Attachment_7;Attachment #7\n"
                                 "Attachment_8;Attachment #8\n"
                                 "Attachment_9;Attachment #9\n"
                                 "Attachment_10;Attachment #10\n"
                                 "PixelCropBottom;Pixel Crop Bottom\n"
                                 "PixelCropLeft;Pixel Crop Left\n"
                                 "PixelCropRight;Pixel Crop Right\n"
                                 "PixelCropTop;Pixel Crop Top\n"
                                 "IsStreamable;Is Streamable\n";

/// From what a stream calls its codec to the name people use.
const QHash<QString, QString> &codecs()
{
    static const QHash<QString, QString> table{
        {QStringLiteral("MPEG Audio Version 1 Layer 3"), QStringLiteral("MP3")},
        {QStringLiteral("DTS MA / Core"), QStringLiteral("DTS-HD MA")},
        {QStringLiteral("2 MPEG Video Version 2"), QStringLiteral("MPEG-2")},
        {QStringLiteral("MPEG Video Version 2"), QStringLiteral("MPEG-2")},
        {QStringLiteral("V_MPEG2 MPEG Video Version 2"), QStringLiteral("MPEG-2")},
        {QStringLiteral("MP42 MPEG-4 Visual"), QStringLiteral("MS MPEG-4")},
        {QStringLiteral("MP43 MPEG-4 Visual"), QStringLiteral("MS MPEG-4")},
    };
    return table;
}

} // namespace

void oMediaInfo::setupLibrary()
{
    useUtf8CharacterType();
    // Asking for the list sets the show flags back, so it is asked for once, before they are set.
    StandardParameters::text();
    using namespace Qt::StringLiterals;
    mi::option(nullptr, u"Language"_s, QString::fromUtf16(kLanguage));
    mi::option(nullptr, u"cover_data"_s, u"base64"_s);
    const QString show
        = mi::option(nullptr, u"showparameter"_s,
                     u"Video_FrameCount,Audio_FrameCount,Video_PixelAspectRatio,Image_PixelAspectRatio"_s);
    if (!show.isEmpty())
        qCInfo(lcQuorvin).noquote() << "MediaInfo setup warning (show):" << show;
    const QString hide = mi::option(nullptr, u"hideparameter"_s,
                                    u"General_FrameCount,General_CompleteName,General_FileSize/String"_s);
    if (!hide.isEmpty())
        qCInfo(lcQuorvin).noquote() << "MediaInfo setup warning (hide):" << hide;
}

QString oMediaInfo::libVersion()
{
    return mi::option(nullptr, QStringLiteral("info_version"), QString());
}

oMediaInfo::oMediaInfo() : MI(mi::create())
{
    if (!MI)
        qCInfo(lcQuorvin, "Failed to create MI object");
    OptionSet(QStringLiteral("File_TestContinuousFileNames"), QStringLiteral("0"));
}

oMediaInfo::oMediaInfo(BareHandle) : MI(mi::create()) { }

oMediaInfo::~oMediaInfo()
{
    mi::destroy(MI);
}

Expected<void> oMediaInfo::Open(const QString &path)
{
    if (isUtf8Path(path))
        return openByName(path);
    auto file = RegularFile::open(path);
    if (!file)
        return tl::unexpected(file.error());
    _heldOpen = std::move(*file);
    return openByName(_heldOpen->descriptorPath());
}

Expected<void> oMediaInfo::openByName(const QString &path)
{
    if (mi::open(MI, path))
        return {};
    qCDebug(lcLibraries).noquote() << "MediaInfo: does not open" << path;
    return failure(FailureKind::NotUnderstood);
}

QString oMediaInfo::Inform()
{
    return mi::inform(MI);
}

QString oMediaInfo::InformComplete()
{
    OptionSet(QStringLiteral("Complete"), QStringLiteral("1"));
    QString report = Inform();
    OptionSet(QStringLiteral("Complete"), QStringLiteral("0"));
    return report;
}

QString oMediaInfo::OptionGet(const QString &option)
{
    return mi::option(MI, option, QString());
}

QString oMediaInfo::OptionSet(const QString &option, const QString &value)
{
    return mi::option(MI, option, value);
}

QString oMediaInfo::GetI(StreamKind kind, quint64 number, qint64 parameter, Info info) const
{
    return mi::get(MI, kind, number, parameter, info);
}

QString oMediaInfo::GetI_Name(StreamKind kind, quint64 number, qint64 parameter) const
{
    return GetI(kind, number, parameter, Name);
}

QString oMediaInfo::GetI_Text(StreamKind kind, quint64 number, qint64 parameter) const
{
    return GetI(kind, number, parameter, Value);
}

QString oMediaInfo::GetFromStream(StreamKind kind, quint64 number, const QString &parameter) const
{
    using namespace Qt::StringLiterals;
    if (parameter == "FileSize/String/SI"_L1) {
        const QString size = get(kind, number, u"FileSize"_s, Value);
        return size.isEmpty() ? QString()
                              : Utilities::filesizeToMacHumanString(Utilities::leadingInteger(size));
    }
    if (parameter == "StreamSize/String/SI"_L1)
        return sizeAndShare(kind, number, u"StreamSize"_s);
    if (parameter == "Source_StreamSize/String/SI"_L1)
        return sizeAndShare(kind, number, u"Source_StreamSize"_s);
    return get(kind, number, parameter, Value);
}

QString oMediaInfo::sizeAndShare(StreamKind kind, quint64 number, const QString &parameter) const
{
    const QString size = get(kind, number, parameter, Value);
    const QString proportion = get(kind, number, parameter + QLatin1String("_Proportion"), Value);
    if (size.isEmpty() || proportion.isEmpty())
        return {};
    const float share = proportion.toFloat() * 100.0F;
    return Utilities::filesizeToMacHumanString(Utilities::leadingInteger(size)) + QLatin1String(" (")
        + Utilities::fixedNotation(static_cast<double>(share), 1) + QLatin1String("%)");
}

QString oMediaInfo::get(StreamKind kind, quint64 number, const QString &parameter, Info info) const
{
    // The library looks a name up by comparing it with all names of the kind; an index goes straight to the
    // text.
    if (const auto index = StandardParameters::indexOf(kind, parameter))
        return GetI(kind, number, *index, info);
    return mi::get(MI, kind, number, parameter, info);
}

QString oMediaInfo::GetParameterName(StreamKind kind, const QString &parameter) const
{
    return get(kind, 0, parameter, DisplayName);
}

QString oMediaInfo::GetParameterOptions(StreamKind kind, const QString &parameter) const
{
    return get(kind, 0, parameter, Options);
}

qint64 oMediaInfo::numberOfStreams(StreamKind kind) const
{
    return mi::count(MI, kind);
}

qint64 oMediaInfo::numberOfOptionsInStream(quint64 number, StreamKind kind) const
{
    return mi::count(MI, kind, number);
}

QString oMediaInfo::myCodecHint(StreamKind kind, quint64 number) const
{
    using namespace Qt::StringLiterals;
    const auto read = [&](const QString &parameter) { return GetFromStream(kind, number, parameter); };
    const auto addIfSet = [](QStringList &list, const QString &text) {
        if (!text.isEmpty())
            list.append(text);
    };

    const QString format = read(u"Format"_s);
    QStringList description;
    if (kind == StreamKind::Video) {
        QString hint = format == "MPEG-4 Visual"_L1 ? read(u"CodecID/Hint"_s) : QString();
        if (!hint.isEmpty() && hint != "Microsoft"_L1)
            return hint;
        addIfSet(description, read(u"CodecID"_s));
    }
    description.append(format);
    addIfSet(description, read(u"Format_Version"_s));
    if (kind != StreamKind::Video)
        addIfSet(description, read(u"Format_Profile"_s));
    return codecs().value(description.join(u' '));
}

std::vector<std::pair<QString, QStringList>> oMediaInfo::dictionaryOfParameters()
{
    std::vector<std::pair<QString, QStringList>> result;
    for (const auto &section : StandardParameters::list()) {
        const StreamKind kind = streamStringToKind(section.heading);
        QStringList names;
        for (const QString &name : section.names) {
            const bool replaced = name == QLatin1String("FileSize/String")
                ? kind == StreamKind::General
                : StandardParameters::isStreamSize(name);
            if (replaced)
                names.append(name + QLatin1String("/SI"));
            names.append(name);
        }
        result.emplace_back(streamKindToHumanString(kind), names);
    }
    return result;
}

QString oMediaInfo::parameterReport()
{
    QStringList lines;
    for (const QString &line : StandardParameters::text().split(u'\n', Qt::SkipEmptyParts)) {
        if (line.contains(u';'))
            lines.append(line);
        else
            lines.append({QString(), line, QStringLiteral("----------------------")});
    }
    return lines.join(u'\n');
}

Expected<QString> oMediaInfo::InformOnFile(const QString &path)
{
    oMediaInfo info{BareHandle{}};
    return info.Open(path).map([&] { return info.Inform(); });
}

Expected<QString> oMediaInfo::InformCompleteOnFile(const QString &path)
{
    oMediaInfo info;
    return info.Open(path).map([&] { return info.InformComplete(); });
}

Expected<QString> oMediaInfo::InformTraceOnFile(const QString &path)
{
    oMediaInfo info;
    info.OptionSet(QStringLiteral("Inform"), QStringLiteral("Details;1"));
    return info.Open(path).map([&] { return info.Inform(); });
}

} // namespace quorvin
