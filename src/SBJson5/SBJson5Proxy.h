// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMetaType>
#include <QVariant>

#include <memory>

namespace quorvin {

/// An object that offers a value to be written in its place.
class SBJson5Proxy {
public:
    virtual ~SBJson5Proxy() = default;

    virtual QVariant proxyForJson() const = 0;
};

using SBJson5ProxyPtr = std::shared_ptr<const SBJson5Proxy>;

} // namespace quorvin

Q_DECLARE_METATYPE(quorvin::SBJson5ProxyPtr)
