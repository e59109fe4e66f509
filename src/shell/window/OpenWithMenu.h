// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMenu>

#include <optional>

namespace quorvin {

class StatusLine;

/// The applications that can open the current file: built when the menu opens, once for a file. Main thread.
class OpenWithMenu : public QMenu {
    Q_OBJECT
public:
    /// What cannot be opened is said in `status`, which must outlive the menu.
    explicit OpenWithMenu(StatusLine &status, QWidget *parent = nullptr);

    /// The file that is meant from now on; absent for none. `mimeName` is of its kind, as far as that was
    /// read; "" goes by the name.
    void setFile(const std::optional<QString> &path, const QString &mimeName = {});

private:
    void build();
    void open(const QString &id, const QString &name);

    StatusLine &_status;
    std::optional<QString> _path;
    QString _mimeName;
    bool _isBuilt = false; ///< for this file
};

} // namespace quorvin
