// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/surgery/RemovalForm.h"

#include <QObject>

namespace quorvin {

class LiveSettings;

/// Opens the sheets that take metadata out of a window's images. Main thread.
class RemovalController : public QObject {
    Q_OBJECT
public:
    /// Both must outlive this object, which belongs to the window.
    RemovalController(LiveSettings &settings, QWidget *window);

    /// Begins with what was checked the last time.
    void menuRemoveImageMetadata(const RemovalFiles &files);
    /// Begins with all that can be checked.
    void removeAll(const RemovalFiles &files);
    /// The same with the position alone.
    void removeLocationInfo(const RemovalFiles &files);

Q_SIGNALS:
    /// What is known of these is no longer so.
    void filesDidChange(const std::vector<quorvin::FilelistItemPtr> &files);

private:
    void open(const RemovalFiles &files, const oEXIV2Metadata &options, bool isFixed);

    LiveSettings &_settings;
    QWidget *_window;
    oEXIV2Metadata _options; ///< that were checked last
};

} // namespace quorvin
