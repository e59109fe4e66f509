// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "places/basemap/Pn2File.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

// Part of the build: quorvin-basemap FOLDER OUTPUT makes the base map that the program carries from the files
// of the folder.

namespace {

using namespace quorvin;

/// In the order of the layers.
constexpr std::array<const char *, kMapLayers> kFiles{
    "ne_50m_land.pn2", "ne_50m_lakes.pn2", "ne_50m_rivers_lake_centerlines.pn2",
    "ne_50m_admin_0_boundary_lines_land.pn2", "ne_50m_admin_1_states_provinces_lines.pn2"};

tl::expected<std::vector<ArcShape>, std::string> shapesOfFile(const std::string &path)
{
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad())
        return tl::unexpected(std::string("can't be read; it comes with the package marble-qt-data"));
    return shapesOfPn2(bytes);
}

bool write(const std::string &path, const std::string &bytes)
{
    std::ofstream file(path, std::ios::binary);
    file << bytes << std::flush;
    return file.good();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::cerr << "usage: quorvin-basemap FOLDER OUTPUT\n";
        return EXIT_FAILURE;
    }
    ArcLayers layers;
    for (std::size_t layer = 0; layer < kMapLayers; ++layer) {
        const std::string path = std::string(argv[1]) + '/' + kFiles[layer];
        auto shapes = shapesOfFile(path);
        if (!shapes) {
            std::cerr << "quorvin-basemap: " << path << ' ' << shapes.error() << '\n';
            return EXIT_FAILURE;
        }
        layers[layer] = std::move(*shapes);
    }
    if (!write(argv[2], baseMapBytes(layers))) {
        std::cerr << "quorvin-basemap: " << argv[2] << " can't be written\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
