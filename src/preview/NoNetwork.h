// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quorvin {

/// From now on no thread of this process can reach the network, whatever a file names; sockets of this
/// machine, of the display server and the sound, go on. False where the kernel can't withhold it. Call once
/// the display is connected: it may be on another machine.
bool shutOffNetwork();

} // namespace quorvin
