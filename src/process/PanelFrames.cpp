// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "process/PanelFrames.h"

#include "process/Values.h"

namespace quorvin {

template <>
struct Fields<PanelLook> {
    static constexpr auto list
        = std::tuple(&PanelLook::number, &PanelLook::colorScheme, &PanelLook::isRightToLeft,
                     &PanelLook::useSIUnits, &PanelLook::isMuted, &PanelLook::frame);
};

template <>
struct Fields<PanelFile> {
    static constexpr auto list
        = std::tuple(&PanelFile::number, &PanelFile::path, &PanelFile::opens, &PanelFile::window);
    static bool isValid(const PanelFile &file) { return file.path.startsWith(u'/'); }
};

template <>
struct Fields<PanelHide> {
    static constexpr auto list = std::tuple(&PanelHide::number);
};

template <>
struct Fields<PanelDone> {
    static constexpr auto list = std::tuple(&PanelDone::number);
};

template <>
struct Fields<PanelClosed> {
    static constexpr auto list = std::tuple(&PanelClosed::byKey);
};

template <>
struct Fields<PanelKey> {
    static constexpr auto list
        = std::tuple(&PanelKey::key, &PanelKey::modifiers, &PanelKey::text, &PanelKey::isRepeated);
};

template <>
struct Fields<PanelKept> {
    static constexpr auto list = std::tuple(&PanelKept::isMuted, &PanelKept::frame);
};

namespace {

template <typename Message>
QByteArray framedPanelMessage(const Message &message)
{
    ByteWriter frame;
    frame.bytes(bytesOf(message));
    return frame.take();
}

} // namespace

QByteArray frameOf(const PanelOrder &order)
{
    return framedPanelMessage(order);
}

QByteArray frameOf(const PanelReport &report)
{
    return framedPanelMessage(report);
}

std::optional<PanelOrder> panelOrderOf(QByteArrayView content)
{
    return valueOf<PanelOrder>(content);
}

std::optional<PanelReport> panelReportOf(QByteArrayView content)
{
    return valueOf<PanelReport>(content);
}

} // namespace quorvin
