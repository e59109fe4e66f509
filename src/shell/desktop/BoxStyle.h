// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

namespace quorvin {

/// A style whose check boxes and radio buttons have an outline that stands out from dark windows too, where
/// that of the style beneath is darker than what it stands on. Main thread.
class BoxStyle final : public QProxyStyle {
    Q_OBJECT
public:
    /// The style beneath, by the name that the toolkit has for it.
    explicit BoxStyle(const QString &style) : QProxyStyle(style) { }

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

} // namespace quorvin
