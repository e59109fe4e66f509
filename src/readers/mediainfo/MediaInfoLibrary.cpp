// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/MediaInfoLibrary.h"

#include "model/Log.h"
#include "platform/LoadedLibrary.h"

#include <MediaInfoDLL/MediaInfoDLL_Static.h>

#include <cstddef>
#include <exception>
#include <string>
#include <type_traits>

namespace quorvin::mi {

namespace {

constexpr char kLibrary[] = "libmediainfo.so.0";

QString stringFromWChar(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

MediaInfo_stream_C kindOf(StreamKind kind)
{
    return static_cast<MediaInfo_stream_C>(kind);
}

const LoadedLibrary &loadedLibrary()
{
    static const LoadedLibrary loaded(kLibrary);
    return loaded;
}

/// A function of the library.
template <typename Function>
class Entry {
public:
    explicit Entry(const char *name) : _function(loadedLibrary(), name) { }

    /// What the function gives, or nothing of its type if it throws or is not there.
    template <typename... Arguments>
    auto operator()(Arguments... arguments) const
    {
        using Result = std::invoke_result_t<Function *, Arguments...>;
        try {
            return _function(arguments...);
        } catch (const std::exception &error) {
            qCDebug(lcLibraries) << "MediaInfo:" << error.what();
        } catch (...) {
            qCDebug(lcLibraries) << "MediaInfo: an exception without a name";
        }
        return Result();
    }

private:
    LibraryEntry<Function> _function;
};

/// Loaded when it is first called: it brings some forty libraries with it, for which a program that leaves
/// the reading to others need not wait.
struct Library {
    Entry<decltype(MediaInfo_New)> create{"MediaInfo_New"};
    Entry<decltype(MediaInfo_Delete)> destroy{"MediaInfo_Delete"};
    Entry<decltype(MediaInfo_Open)> open{"MediaInfo_Open"};
    Entry<decltype(MediaInfo_Inform)> inform{"MediaInfo_Inform"};
    Entry<decltype(MediaInfo_Option)> option{"MediaInfo_Option"};
    Entry<decltype(MediaInfo_Count_Get)> count{"MediaInfo_Count_Get"};
    Entry<decltype(MediaInfo_GetI)> getByNumber{"MediaInfo_GetI"};
    Entry<decltype(MediaInfo_Get)> getByName{"MediaInfo_Get"};
};

const Library &library()
{
    static const Library library;
    return library;
}

} // namespace

void *create()
{
    return library().create();
}

void destroy(void *handle)
{
    library().destroy(handle);
}

bool open(void *handle, const QString &path)
{
    return library().open(handle, path.toStdWString().c_str()) != 0;
}

QString inform(void *handle)
{
    return stringFromWChar(library().inform(handle, std::size_t(0)));
}

QString option(void *handle, const QString &name, const QString &value)
{
    return stringFromWChar(
        library().option(handle, name.toStdWString().c_str(), value.toStdWString().c_str()));
}

qint64 count(void *handle, StreamKind kind)
{
    return static_cast<qint64>(library().count(handle, kindOf(kind), static_cast<std::size_t>(-1)));
}

qint64 count(void *handle, StreamKind kind, quint64 number)
{
    return static_cast<qint64>(library().count(handle, kindOf(kind), number));
}

QString get(void *handle, StreamKind kind, quint64 number, qint64 parameter, int info)
{
    return stringFromWChar(library().getByNumber(handle, kindOf(kind), number,
                                                 static_cast<std::size_t>(parameter),
                                                 static_cast<MediaInfo_info_C>(info)));
}

QString get(void *handle, StreamKind kind, quint64 number, const QString &parameter, int info)
{
    return stringFromWChar(library().getByName(handle, kindOf(kind), number, parameter.toStdWString().c_str(),
                                               static_cast<MediaInfo_info_C>(info), MediaInfo_Info_Name));
}

} // namespace quorvin::mi
