// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <variant>

namespace quorvin {

/// What a window and the program that shows its files say to each other: frames, as readers have them. Orders
/// are numbered from 1, and each is answered by `PanelDone` once it is obeyed; anything else may come at any
/// time.

/// The descriptor under which the program finds its end of the socket.
inline constexpr int kPanelSocket = 3;
inline constexpr quint32 kMostPanelBytes = 64U << 10;

/// How the user wants it: the first order, and each time that something of it has changed.
struct PanelLook {
    quint32 number = 0;
    QString colorScheme; ///< as the setting of that name
    bool isRightToLeft = false;
    bool useSIUnits = true;
    bool isMuted = false;
    QByteArray frame; ///< place and size as the toolkit saves them; "" when there are none yet
};

/// Shows a file in place of the one before.
struct PanelFile {
    quint32 number = 0;
    QString path;
    bool opens = false; ///< the panel comes to the front; without, a hidden one stays so
    quint64 window = 0; ///< of the display server, to stay above; 0 for none
};

/// Hides the panel, which lets go of its file.
struct PanelHide {
    quint32 number = 0;
};

using PanelOrder = std::variant<PanelLook, PanelFile, PanelHide>;

/// An order is obeyed, and all before it.
struct PanelDone {
    quint32 number = 0;
};

/// The user has closed the panel.
struct PanelClosed {
    bool byKey = false; ///< so that the keyboard is wanted elsewhere
};

/// A key that was pressed in the panel, and that it has no use for.
struct PanelKey {
    qint32 key = 0; ///< as the toolkit counts keys, and its modifiers
    quint32 modifiers = 0;
    QString text;
    bool isRepeated = false;
};

/// What the user has left it at, for the next time.
struct PanelKept {
    bool isMuted = false;
    QByteArray frame;
};

using PanelReport = std::variant<PanelDone, PanelClosed, PanelKey, PanelKept>;

QByteArray frameOf(const PanelOrder &order);
QByteArray frameOf(const PanelReport &report);
/// Absent for what is no message; trusts nothing.
std::optional<PanelOrder> panelOrderOf(QByteArrayView content);
std::optional<PanelReport> panelReportOf(QByteArrayView content);

} // namespace quorvin
