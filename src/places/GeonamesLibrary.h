// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/LoadedLibrary.h"

#include <geonames.h>

namespace quorvin {

/// What this system calls of libgeonames. Loaded when it is first asked for: it brings libraries along that
/// most runs do without. Its functions are called by one thread at a time.
class GeonamesLibrary {
public:
    GeonamesLibrary() = default;

private:
    LoadedLibrary _library{"libgeonames.so.0"};

public:
    LibraryEntry<decltype(::geonames_get_n_cities)> count{_library, "geonames_get_n_cities"};
    LibraryEntry<decltype(::geonames_get_city)> city{_library, "geonames_get_city"};
    LibraryEntry<decltype(::geonames_city_free)> freeCity{_library, "geonames_city_free"};
    LibraryEntry<decltype(::geonames_city_get_name)> name{_library, "geonames_city_get_name"};
    LibraryEntry<decltype(::geonames_city_get_state)> state{_library, "geonames_city_get_state"};
    LibraryEntry<decltype(::geonames_city_get_country)> country{_library, "geonames_city_get_country"};
    LibraryEntry<decltype(::geonames_city_get_timezone)> timeZone{_library, "geonames_city_get_timezone"};
    LibraryEntry<decltype(::geonames_city_get_latitude)> latitude{_library, "geonames_city_get_latitude"};
    LibraryEntry<decltype(::geonames_city_get_longitude)> longitude{_library, "geonames_city_get_longitude"};
    LibraryEntry<decltype(::geonames_city_get_population)> population{_library,
                                                                      "geonames_city_get_population"};
};

} // namespace quorvin
