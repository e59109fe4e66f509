// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

// mutants FOLDER OUT COUNT SEED: writes COUNT damaged copies of the files below FOLDER into OUT, named by
// their number. The same folder, count and seed give the same copies.

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = 8U << 20U;
constexpr std::uint64_t kMostFlips = 20;
constexpr std::uint64_t kMostFields = 8;
constexpr std::uint64_t kLongestPiece = 4096;

using Bytes = std::vector<char>;

/// Whole numbers that are the same with every library.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : _engine(seed) { }
    std::uint64_t below(std::uint64_t end) { return _engine() % end; }

private:
    std::mt19937_64 _engine;
};

struct Piece {
    std::size_t begin;
    std::size_t size;
};

Piece piece(const Bytes &bytes, Dice &dice)
{
    const std::size_t begin = dice.below(bytes.size());
    return {begin, std::min<std::size_t>(1 + dice.below(kLongestPiece), bytes.size() - begin)};
}

void cut(Bytes &bytes, Dice &dice)
{
    bytes.resize(dice.below(bytes.size()));
}

void flipBits(Bytes &bytes, Dice &dice)
{
    for (std::uint64_t flips = 1 + dice.below(kMostFlips); flips > 0; --flips) {
        char &byte = bytes[dice.below(bytes.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ (1U << dice.below(8)));
    }
}

/// Sizes, counts and offsets that formats do not expect, mostly near the front, where the headers are.
void setFields(Bytes &bytes, Dice &dice)
{
    constexpr std::array<std::uint32_t, 8> kValues{0,          1,          0x7F,       0xFFFF,
                                                   0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF};
    for (std::uint64_t fields = 1 + dice.below(kMostFields); fields > 0; --fields) {
        const std::uint64_t room
            = dice.below(2) == 0 ? std::min<std::uint64_t>(bytes.size(), 512) : bytes.size();
        const std::size_t at = dice.below(room);
        const std::uint32_t value = kValues[dice.below(kValues.size())];
        const std::size_t size = std::min<std::size_t>(std::size_t{1} << dice.below(3), bytes.size() - at);
        for (std::size_t i = 0; i < size; ++i)
            bytes[at + i] = static_cast<char>(value >> (8 * i));
    }
}

void clearPiece(Bytes &bytes, Dice &dice)
{
    const auto [begin, size] = piece(bytes, dice);
    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(begin), size, '\0');
}

void removePiece(Bytes &bytes, Dice &dice)
{
    const auto [begin, size] = piece(bytes, dice);
    const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(begin);
    bytes.erase(from, from + static_cast<std::ptrdiff_t>(size));
}

void repeatPiece(Bytes &bytes, Dice &dice)
{
    const auto [begin, size] = piece(bytes, dice);
    const Bytes copy(bytes.begin() + static_cast<std::ptrdiff_t>(begin),
                     bytes.begin() + static_cast<std::ptrdiff_t>(begin + size));
    bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(dice.below(bytes.size())), copy.begin(),
                 copy.end());
}

constexpr std::array kDamages{cut,       flipBits,   flipBits,    setFields,
                              setFields, clearPiece, removePiece, repeatPiece};

std::vector<fs::path> filesBelow(const fs::path &folder)
{
    std::vector<fs::path> files;
    for (const auto &entry : fs::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && entry.file_size() > 0 && entry.file_size() <= kLargestFile)
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

Bytes contentOf(const fs::path &path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<fs::path> files = argc == 5 ? filesBelow(argv[1]) : std::vector<fs::path>();
    if (files.empty()) {
        std::fputs("usage: mutants FOLDER OUT COUNT SEED, with files below FOLDER\n", stderr);
        return EXIT_FAILURE;
    }
    const unsigned long count = std::strtoul(argv[3], nullptr, 10);
    Dice dice(std::strtoull(argv[4], nullptr, 10));
    for (unsigned long i = 1; i <= count; ++i) {
        const fs::path &source = files[dice.below(files.size())];
        Bytes bytes = contentOf(source);
        if (!bytes.empty())
            kDamages[dice.below(kDamages.size())](bytes, dice);
        std::ofstream out(fs::path(argv[2]) / (std::to_string(i) + source.extension().string()),
                          std::ios::binary);
        out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush()) {
            std::fputs("mutants: a file can not be written\n", stderr);
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
