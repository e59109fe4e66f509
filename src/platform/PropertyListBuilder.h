// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <vector>

namespace quorvin {

/// Makes a property list of maps, lists and strings from the outside in. Within a map every other `put` is
/// the key of what follows. The whole list is in memory. When it is taken, the next one may be begun. One
/// thread.
class PropertyListBuilder {
public:
    void openMap();
    void openList();
    /// Closes the innermost map or list that is open.
    void close();
    /// Valid UTF-8. A zero byte, which libplist cannot take, becomes U+FFFD.
    void put(QByteArray text);

    /// Fails for a list of more than 4 GiB, which is as much as libplist can tell the length of.
    Expected<QByteArray> takeBinary();

private:
    using Node = void *;
    struct NodeDeleter {
        void operator()(Node node) const;
    };
    struct Container {
        Node node;
        std::optional<QByteArray> key; ///< of the value that comes next
    };

    void open(Node node);
    void add(Node node);

    std::unique_ptr<void, NodeDeleter> _root;
    std::vector<Container> _open;
};

} // namespace quorvin
