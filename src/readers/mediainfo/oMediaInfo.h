// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "platform/RegularFile.h"
#include "readers/mediainfo/StreamKind.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace quorvin {

/// The one place that speaks to the MediaInfo library: one library handle an object, one file a handle. Texts
/// never come back absent: a missing parameter is "". An object stays on the thread that made it; several
/// threads may each have theirs. No exception of the library leaves this class.
class oMediaInfo {
public:
    /// What a parameter is asked for.
    enum Info { Name = 0, Value = 1, Options = 3, DisplayName = 4 };

    /// Sets the library up: language, covers, which parameters are shown. Once, before the first file and any
    /// thread.
    static void setupLibrary();
    /// The library's own words, such as "MediaInfoLib - v23.04".
    static QString libVersion();

    /// Files that look like parts of a numbered sequence are read alone.
    oMediaInfo();
    ~oMediaInfo();
    oMediaInfo(const oMediaInfo &) = delete;
    oMediaInfo &operator=(const oMediaInfo &) = delete;

    /// Fails when the library does not open the file. Success is no promise: the library opens files that it
    /// does not recognise, and then has no format for them.
    Expected<void> Open(const QString &path);

    /// Whether the library reads the file under a name that is not its own, since that is not UTF-8.
    bool isOpenByDescriptor() const { return _heldOpen.has_value(); }

    /// The library's text report; lines end in "\n".
    QString Inform();
    /// The same with all parameters. Changes an option of the whole process meanwhile.
    QString InformComplete();

    QString OptionGet(const QString &option);
    /// Returns what the library answers. Most options act on the whole process.
    QString OptionSet(const QString &option, const QString &value);

    QString GetI(StreamKind kind, quint64 number, qint64 parameter, Info info) const;
    QString GetI_Name(StreamKind kind, quint64 number, qint64 parameter) const;
    QString GetI_Text(StreamKind kind, quint64 number, qint64 parameter) const;

    /// The text of a parameter by name. Beside the library's names there are three of our own, in decimal
    /// units: "FileSize/String/SI"; "StreamSize/String/SI" and "Source_StreamSize/String/SI", each with its
    /// share of the file.
    QString GetFromStream(StreamKind kind, quint64 number, const QString &parameter) const;
    QString GetParameterName(StreamKind kind, const QString &parameter) const;
    QString GetParameterOptions(StreamKind kind, const QString &parameter) const;
    QString GetGeneral(quint64 number, const QString &parameter) const
    {
        return GetFromStream(StreamKind::General, number, parameter);
    }
    QString GetVideo(quint64 number, const QString &parameter) const
    {
        return GetFromStream(StreamKind::Video, number, parameter);
    }
    QString GetAudio(quint64 number, const QString &parameter) const
    {
        return GetFromStream(StreamKind::Audio, number, parameter);
    }
    QString GetText(quint64 number, const QString &parameter) const
    {
        return GetFromStream(StreamKind::Text, number, parameter);
    }
    QString GetMenu(quint64 number, const QString &parameter) const
    {
        return GetFromStream(StreamKind::Menu, number, parameter);
    }

    qint64 numberOfStreams(StreamKind kind) const;
    /// How many parameters the stream has, the empty ones counted.
    qint64 numberOfOptionsInStream(quint64 number, StreamKind kind) const;

    /// The short name people use for a stream's codec, such as "MP3"; "" when there is none.
    QString myCodecHint(StreamKind kind, quint64 number) const;

    /// The library's list of parameter names by human stream name, in its order, our own names ahead of those
    /// they replace.
    static std::vector<std::pair<QString, QStringList>> dictionaryOfParameters();

    /// The library's list of parameters to read: an empty line, a heading and a rule, then a line each.
    static QString parameterReport();

    /// Reports on a file that is not open yet; fails when the library does not open it. The first keeps the
    /// library's own rule for numbered files; the last two set options of the whole process.
    static Expected<QString> InformOnFile(const QString &path);
    static Expected<QString> InformCompleteOnFile(const QString &path);
    static Expected<QString> InformTraceOnFile(const QString &path);

private:
    struct BareHandle { };
    explicit oMediaInfo(BareHandle);

    Expected<void> openByName(const QString &path);
    QString sizeAndShare(StreamKind kind, quint64 number, const QString &parameter) const;
    QString get(StreamKind kind, quint64 number, const QString &parameter, Info info) const;

    void *MI = nullptr;
    std::optional<RegularFile> _heldOpen; ///< a file that the library reaches through its descriptor
};

} // namespace quorvin
