// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/LoadedLibrary.h"

#include <QString>

#include <gio/gdesktopappinfo.h>
#include <gio/gio.h>

#include <memory>

namespace quorvin {

/// What this system calls of GIO. Loaded when it is first asked for: a window that opens nothing elsewhere
/// need not wait for it and the half dozen libraries it brings along. Any thread.
class GioLibrary {
public:
    static const GioLibrary &instance();

    struct Unref {
        void operator()(GAppInfo *info) const { instance().unref(info); }
    };
    using AppInfoPtr = std::unique_ptr<GAppInfo, Unref>;

    /// What a call that failed says. Takes `error`, which is null where the library is missing.
    QString take(GError *error) const;

private:
    LoadedLibrary _library{"libgio-2.0.so.0"};

public:
    LibraryEntry<decltype(::g_app_info_get_default_for_type)> defaultForType{
        _library, "g_app_info_get_default_for_type"};
    LibraryEntry<decltype(::g_app_info_get_default_for_uri_scheme)> defaultForScheme{
        _library, "g_app_info_get_default_for_uri_scheme"};
    LibraryEntry<decltype(::g_app_info_get_all_for_type)> allForType{_library, "g_app_info_get_all_for_type"};
    LibraryEntry<decltype(::g_app_info_get_id)> id{_library, "g_app_info_get_id"};
    LibraryEntry<decltype(::g_app_info_get_display_name)> displayName{_library,
                                                                      "g_app_info_get_display_name"};
    LibraryEntry<decltype(::g_app_info_get_executable)> executable{_library, "g_app_info_get_executable"};
    LibraryEntry<decltype(::g_app_info_get_icon)> icon{_library, "g_app_info_get_icon"};
    LibraryEntry<decltype(::g_icon_to_string)> iconText{_library, "g_icon_to_string"};
    LibraryEntry<decltype(::g_desktop_app_info_new)> application{_library, "g_desktop_app_info_new"};
    LibraryEntry<decltype(::g_app_info_launch_uris)> launchUris{_library, "g_app_info_launch_uris"};
    LibraryEntry<decltype(::g_app_info_launch_default_for_uri)> launchDefault{
        _library, "g_app_info_launch_default_for_uri"};
    LibraryEntry<decltype(::g_object_unref)> unref{_library, "g_object_unref"};
    LibraryEntry<decltype(::g_free)> free{_library, "g_free"};
    LibraryEntry<decltype(::g_list_free)> freeList{_library, "g_list_free"};
    LibraryEntry<decltype(::g_error_free)> freeError{_library, "g_error_free"};
};

} // namespace quorvin
