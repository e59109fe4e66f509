// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "surgery/MatroskaAttachments.h"

#include "platform/RegularFile.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <optional>

namespace quorvin {

namespace {

constexpr std::size_t kMostIdLength = 4;
constexpr std::size_t kMostSizeLength = 8;
constexpr quint64 kMostNameRead = 4096;
constexpr std::size_t kMostAttachments = 10'000; ///< a hostile file has no end of them

enum class ElementId : quint32 {
    FileHead = 0x1A45DFA3,
    Segment = 0x18538067,
    Cluster = 0x1F43B675,
    Attachments = 0x1941A469,
    AttachedFile = 0x61A7,
    FileName = 0x466E,
    FileData = 0x465C,
};

struct Element {
    ElementId id{};
    quint64 begin = 0; ///< of its content
    quint64 end = 0; ///< may lie behind the end of the file
    bool isOpen = false; ///< it does not tell where it ends
};

/// That which begins there; absent when none does.
std::optional<Element> elementAt(const RegularFile &file, quint64 place, quint64 end)
{
    std::array<quint8, kMostIdLength + kMostSizeLength> head{};
    const std::size_t wanted = std::min<quint64>(head.size(), end - std::min(place, end));
    const ssize_t count = ::pread(file.descriptor(), head.data(), wanted, static_cast<off_t>(place));
    const auto idLength = static_cast<std::size_t>(std::countl_zero(head[0])) + 1;
    if (count <= 0 || idLength > kMostIdLength)
        return std::nullopt;
    const auto sizeLength = static_cast<std::size_t>(std::countl_zero(head[idLength])) + 1;
    if (sizeLength > kMostSizeLength || idLength + sizeLength > static_cast<std::size_t>(count))
        return std::nullopt;
    Element element;
    quint32 id = 0;
    for (std::size_t i = 0; i < idLength; ++i)
        id = id << 8U | head[i];
    element.id = static_cast<ElementId>(id);
    const quint64 longest = (quint64{1} << (7 * sizeLength)) - 1;
    quint64 size = 0;
    for (std::size_t i = idLength; i < idLength + sizeLength; ++i)
        size = size << 8U | head[i];
    size &= longest;
    element.isOpen = size == longest;
    element.begin = place + idLength + sizeLength;
    element.end = element.isOpen ? end : element.begin + size;
    return element;
}

/// Calls with every element inside that one.
template <typename Use>
void forEachInside(const RegularFile &file, const Element &parent, Use use)
{
    const quint64 end = std::min(parent.end, file.size());
    quint64 place = parent.begin;
    while (const auto element = elementAt(file, place, end)) {
        use(*element);
        place = element->end;
    }
}

QString nameIn(const RegularFile &file, const Element &element)
{
    QByteArray bytes(static_cast<qsizetype>(std::min(element.end - element.begin, kMostNameRead)), '\0');
    const ssize_t count = ::pread(file.descriptor(), bytes.data(), static_cast<std::size_t>(bytes.size()),
                                  static_cast<off_t>(element.begin));
    bytes.truncate(std::max<ssize_t>(count, 0));
    const qsizetype end = bytes.indexOf('\0');
    return QString::fromUtf8(end < 0 ? bytes : bytes.first(end));
}

std::optional<MatroskaAttachment> attachmentIn(const RegularFile &file, const Element &parent)
{
    MatroskaAttachment attachment;
    bool hasContent = false;
    forEachInside(file, parent, [&](const Element &element) {
        if (element.id == ElementId::FileName) {
            attachment.name = nameIn(file, element);
        } else if (element.id == ElementId::FileData) {
            attachment.offset = element.begin;
            attachment.size = element.end - element.begin;
            hasContent = true;
        }
    });
    return hasContent ? std::optional(attachment) : std::nullopt;
}

} // namespace

std::vector<MatroskaAttachment> matroskaAttachments(const RegularFile &file)
{
    std::vector<MatroskaAttachment> attachments;
    bool isBehindStreams = false;
    auto element = elementAt(file, 0, file.size());
    if (!element || element->id != ElementId::FileHead)
        return attachments;
    while (element && attachments.size() < kMostAttachments) {
        if (element->id == ElementId::Attachments) {
            forEachInside(file, *element, [&](const Element &inside) {
                auto found = inside.id == ElementId::AttachedFile && attachments.size() < kMostAttachments
                    ? attachmentIn(file, inside)
                    : std::nullopt;
                if (!found)
                    return;
                found->isBehindStreams = isBehindStreams;
                attachments.push_back(*found);
            });
        }
        isBehindStreams = isBehindStreams || element->id == ElementId::Cluster;
        // What streams write has no end of its own: it is gone through.
        const bool isEntered
            = element->id == ElementId::Segment || (element->isOpen && element->id == ElementId::Cluster);
        element = elementAt(file, isEntered ? element->begin : element->end, file.size());
    }
    return attachments;
}

} // namespace quorvin
