// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "readers/mediainfo/MediaInfoLibrary.h"

#include "model/Log.h"

#include <MediaInfoDLL/MediaInfoDLL_Static.h>

#include <cstddef>
#include <exception>
#include <string>
#include <type_traits>

namespace quorvin::mi {

namespace {

QString stringFromWChar(const wchar_t *text)
{
    return text ? QString::fromWCharArray(text) : QString();
}

MediaInfo_stream_C kindOf(StreamKind kind)
{
    return static_cast<MediaInfo_stream_C>(kind);
}

/// What the call gives, or nothing of its type if it throws.
template <typename Call>
auto guarded(Call call) -> decltype(call())
{
    try {
        return call();
    } catch (const std::exception &error) {
        qCDebug(lcLibraries) << "MediaInfo:" << error.what();
    } catch (...) {
        qCDebug(lcLibraries) << "MediaInfo: an exception without a name";
    }
    if constexpr (!std::is_void_v<decltype(call())>)
        return {};
}

} // namespace

void *create()
{
    return guarded([] { return MediaInfo_New(); });
}

void destroy(void *handle)
{
    guarded([&] { MediaInfo_Delete(handle); });
}

bool open(void *handle, const QString &path)
{
    const std::wstring wide = path.toStdWString();
    return guarded([&] { return MediaInfo_Open(handle, wide.c_str()) != 0; });
}

QString inform(void *handle)
{
    return guarded([&] { return stringFromWChar(MediaInfo_Inform(handle, 0)); });
}

QString option(void *handle, const QString &name, const QString &value)
{
    const std::wstring wideName = name.toStdWString();
    const std::wstring wideValue = value.toStdWString();
    return guarded(
        [&] { return stringFromWChar(MediaInfo_Option(handle, wideName.c_str(), wideValue.c_str())); });
}

qint64 count(void *handle, StreamKind kind)
{
    return guarded([&] {
        return static_cast<qint64>(MediaInfo_Count_Get(handle, kindOf(kind), static_cast<std::size_t>(-1)));
    });
}

qint64 count(void *handle, StreamKind kind, quint64 number)
{
    return guarded([&] { return static_cast<qint64>(MediaInfo_Count_Get(handle, kindOf(kind), number)); });
}

QString get(void *handle, StreamKind kind, quint64 number, qint64 parameter, int info)
{
    return guarded([&] {
        return stringFromWChar(MediaInfo_GetI(handle, kindOf(kind), number,
                                              static_cast<std::size_t>(parameter),
                                              static_cast<MediaInfo_info_C>(info)));
    });
}

QString get(void *handle, StreamKind kind, quint64 number, const QString &parameter, int info)
{
    const std::wstring name = parameter.toStdWString();
    return guarded([&] {
        return stringFromWChar(MediaInfo_Get(handle, kindOf(kind), number, name.c_str(),
                                             static_cast<MediaInfo_info_C>(info), MediaInfo_Info_Name));
    });
}

} // namespace quorvin::mi
