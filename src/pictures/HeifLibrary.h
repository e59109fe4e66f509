// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/LoadedLibrary.h"

#include <libheif/heif.h>

namespace quorvin {

/// What this system calls of libheif. Loaded when it is first asked for: a window that leaves the reading to
/// others need not wait for it and its decoders. Any thread.
class HeifLibrary {
public:
    static const HeifLibrary &instance();

    bool isLoaded() const { return _library.isLoaded(); }

private:
    LoadedLibrary _library{"libheif.so.1"};

public:
    LibraryEntry<decltype(::heif_context_alloc)> allocContext{_library, "heif_context_alloc"};
    LibraryEntry<decltype(::heif_context_free)> freeContext{_library, "heif_context_free"};
    LibraryEntry<decltype(::heif_context_read_from_file)> readFromFile{_library,
                                                                       "heif_context_read_from_file"};
    LibraryEntry<decltype(::heif_context_get_number_of_top_level_images)> numberOfTopLevelImages{
        _library, "heif_context_get_number_of_top_level_images"};
    LibraryEntry<decltype(::heif_context_get_primary_image_handle)> primaryImage{
        _library, "heif_context_get_primary_image_handle"};
    LibraryEntry<decltype(::heif_image_handle_release)> releaseHandle{_library, "heif_image_handle_release"};
    LibraryEntry<decltype(::heif_image_handle_get_width)> width{_library, "heif_image_handle_get_width"};
    LibraryEntry<decltype(::heif_image_handle_get_height)> height{_library, "heif_image_handle_get_height"};
    LibraryEntry<decltype(::heif_image_handle_get_luma_bits_per_pixel)> lumaBits{
        _library, "heif_image_handle_get_luma_bits_per_pixel"};
    LibraryEntry<decltype(::heif_image_handle_has_alpha_channel)> hasAlpha{
        _library, "heif_image_handle_has_alpha_channel"};
    LibraryEntry<decltype(::heif_image_handle_get_number_of_thumbnails)> numberOfThumbnails{
        _library, "heif_image_handle_get_number_of_thumbnails"};
    LibraryEntry<decltype(::heif_image_handle_get_list_of_thumbnail_IDs)> thumbnailIds{
        _library, "heif_image_handle_get_list_of_thumbnail_IDs"};
    LibraryEntry<decltype(::heif_image_handle_get_thumbnail)> thumbnail{_library,
                                                                        "heif_image_handle_get_thumbnail"};
    LibraryEntry<decltype(::heif_image_handle_get_number_of_metadata_blocks)> numberOfBlocks{
        _library, "heif_image_handle_get_number_of_metadata_blocks"};
    LibraryEntry<decltype(::heif_image_handle_get_list_of_metadata_block_IDs)> blockIds{
        _library, "heif_image_handle_get_list_of_metadata_block_IDs"};
    LibraryEntry<decltype(::heif_image_handle_get_metadata_type)> blockType{
        _library, "heif_image_handle_get_metadata_type"};
    LibraryEntry<decltype(::heif_image_handle_get_metadata_size)> blockSize{
        _library, "heif_image_handle_get_metadata_size"};
    LibraryEntry<decltype(::heif_image_handle_get_metadata)> block{_library,
                                                                   "heif_image_handle_get_metadata"};
    LibraryEntry<decltype(::heif_image_handle_get_color_profile_type)> profileType{
        _library, "heif_image_handle_get_color_profile_type"};
    LibraryEntry<decltype(::heif_image_handle_get_raw_color_profile_size)> profileSize{
        _library, "heif_image_handle_get_raw_color_profile_size"};
    LibraryEntry<decltype(::heif_image_handle_get_raw_color_profile)> profile{
        _library, "heif_image_handle_get_raw_color_profile"};
    LibraryEntry<decltype(::heif_decode_image)> decode{_library, "heif_decode_image"};
    LibraryEntry<decltype(::heif_image_release)> releaseImage{_library, "heif_image_release"};
    LibraryEntry<decltype(::heif_image_get_width)> imageWidth{_library, "heif_image_get_width"};
    LibraryEntry<decltype(::heif_image_get_height)> imageHeight{_library, "heif_image_get_height"};
    LibraryEntry<decltype(::heif_image_get_plane_readonly)> plane{_library, "heif_image_get_plane_readonly"};
    LibraryEntry<decltype(::heif_read_main_brand)> mainBrand{_library, "heif_read_main_brand"};
    LibraryEntry<decltype(::heif_list_compatible_brands)> compatibleBrands{_library,
                                                                           "heif_list_compatible_brands"};
    LibraryEntry<decltype(::heif_free_list_of_compatible_brands)> freeBrands{
        _library, "heif_free_list_of_compatible_brands"};
    LibraryEntry<decltype(::heif_brand_to_fourcc)> brandLetters{_library, "heif_brand_to_fourcc"};
    LibraryEntry<decltype(::heif_get_version)> version{_library, "heif_get_version"};

private:
    HeifLibrary() = default;
};

} // namespace quorvin
