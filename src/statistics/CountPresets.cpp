// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "statistics/CountPresets.h"

#include "statistics/ParameterCount.h"

#include <array>

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

constexpr auto kPhotographer = "Photographer"_L1;
constexpr auto kVideo = "Video"_L1;
constexpr auto kArchivist = "Archivist"_L1;
constexpr auto kTaken = "EXIF/Date and Time (original)"_L1;

constexpr std::array kPresets{
    CountPreset{kPhotographer, "Camera"_L1, "Image/Model"_L1},
    CountPreset{kPhotographer, "Lens"_L1, "EXIF/Lens Model"_L1},
    CountPreset{kPhotographer, "Focal length"_L1, "EXIF/Focal Length"_L1, true},
    CountPreset{kPhotographer, "Aperture"_L1, "EXIF/FNumber"_L1},
    CountPreset{kPhotographer, "Shutter"_L1, "EXIF/Exposure Time"_L1, true},
    CountPreset{kPhotographer, "ISO"_L1, "EXIF/ISO Speed Ratings"_L1},
    CountPreset{kPhotographer, "Hour of the day"_L1, kTaken, true, DateStep::HourOfDay},
    CountPreset{kPhotographer, "Month"_L1, kTaken, true, DateStep::Month},
    CountPreset{kVideo, "Format"_L1, "Video/Format"_L1},
    CountPreset{kVideo, "Format profile"_L1, "Video/Format profile"_L1},
    CountPreset{kVideo, "Width"_L1, "Video/Width"_L1},
    CountPreset{kVideo, "Height"_L1, "Video/Height"_L1},
    CountPreset{kVideo, "Frame rate"_L1, "Video/Frame rate"_L1},
    CountPreset{kVideo, "Bit depth"_L1, "Video/Bit depth"_L1},
    CountPreset{kVideo, "Audio format"_L1, "Audio/Format"_L1},
    CountPreset{kVideo, "Audio channels"_L1, "Audio/Channel(s)"_L1},
    CountPreset{kVideo, "Bit rate"_L1, "Video/Bit rate"_L1, true},
    CountPreset{kVideo, "Duration"_L1, "Container/Duration"_L1, true},
    CountPreset{kArchivist, "Kind"_L1, "File/Kind"_L1},
    CountPreset{kArchivist, "Format"_L1, "Container/Format"_L1},
    CountPreset{kArchivist, "Format version"_L1, "Container/Format version"_L1},
    CountPreset{kArchivist, "Size"_L1, "File/Size"_L1, true},
    CountPreset{kArchivist, "Year"_L1, "File/Modified"_L1, true, DateStep::Year},
    CountPreset{kArchivist, "Writing application"_L1, "Container/Writing application"_L1},
    CountPreset{kArchivist, "Failed"_L1, kFailures},
};

} // namespace

std::span<const CountPreset> countPresets()
{
    return kPresets;
}

} // namespace quorvin
