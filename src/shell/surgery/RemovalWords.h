// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "surgery/RemovalReceipt.h"

#include <QString>

#include <cstddef>
#include <span>

namespace quorvin {

// What the window says of a removal. Any thread.

/// "1 image", "1,204 images".
QString countOfImages(std::size_t count);

/// The line of a file: "12 items go, 1 stays", or once it is done "12 items removed, 1 kept"; or why nothing
/// is done.
QString outcomeInWords(const RemovalReceipt &receipt, bool isPlan);

/// All of them in one line, and how many of `asked` files were left out by a stop.
QString receiptsInWords(std::span<const RemovalReceipt> receipts, bool isPlan, std::size_t asked);

/// Which files a choice stands for: "The 3 selected images", "The image “one.jpg”".
QString selectedImagesInWords(std::size_t count, const QString &firstName);
QString allImagesInWords(std::size_t count, const QString &firstName);

/// What is said of files of the choice that are no images; "" when there are none.
QString othersInWords(std::size_t count);

} // namespace quorvin
