// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QApplication>

namespace quorvin {

/// The application, which can tell what holds its event loop up.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    /// With the probe, each event that keeps the main thread for longer than this is logged, with its
    /// receiver.
    static constexpr int kStallMilliseconds = 50;
    void setStallProbe(bool on) { _probesStalls = on; }

    bool notify(QObject *receiver, QEvent *event) override;

private:
    bool _probesStalls = false;
    int _depth = 0; ///< events under way, one inside another
};

} // namespace quorvin
