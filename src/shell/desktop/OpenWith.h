// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"

#include <QIcon>
#include <QString>

#include <vector>

namespace quorvin {

/// An application that the desktop would open a file with.
struct DesktopApplication {
    QString id; ///< name of its desktop file
    QString name; ///< as menus show it, told apart from others of that name
    QString program; ///< what is run
    QIcon icon; ///< null for none
};

struct DesktopApplications {
    /// The default one first, if there is one, then the others by name, without regard to case.
    std::vector<DesktopApplication> all;
    bool hasDefault = false;
};

/// What opens files of that MIME type; none where no desktop is installed. Reads what the desktop knows of
/// its applications, and not the file. Main thread.
DesktopApplications applicationsFor(const QString &mimeName);

/// Opens the file in the application; the error is a sentence of the desktop's. Symbolic links of the path
/// are resolved first, which may wait for its disk. Any thread.
Expected<void> openWithApplication(const QString &path, const QString &id);

} // namespace quorvin
