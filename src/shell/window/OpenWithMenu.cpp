// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/OpenWithMenu.h"

#include "platform/NativePath.h"
#include "shell/desktop/BackgroundRun.h"
#include "shell/desktop/OpenWith.h"
#include "shell/desktop/PlainText.h"
#include "shell/window/StatusLine.h"

#include <QMimeDatabase>

#include <utility>

namespace quorvin {

OpenWithMenu::OpenWithMenu(StatusLine &status, QWidget *parent)
    : QMenu(tr("Open &With"), parent), _status(status)
{
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &OpenWithMenu::build);
}

void OpenWithMenu::setFile(const std::optional<QString> &path, const QString &mimeName)
{
    menuAction()->setEnabled(path.has_value());
    if (path == _path && mimeName == _mimeName)
        return;
    _path = path;
    _mimeName = mimeName;
    _isBuilt = false;
}

void OpenWithMenu::build()
{
    if (std::exchange(_isBuilt, true))
        return;
    clear();
    if (!_path)
        return;
    // A menu waits for no disk.
    const QString typeOfName
        = QMimeDatabase().mimeTypeForFile(lastPathComponent(*_path), QMimeDatabase::MatchExtension).name();
    const DesktopApplications found = applicationsFor(_mimeName.isEmpty() ? typeOfName : _mimeName);
    for (const DesktopApplication &application : found.all) {
        const bool isDefault = found.hasDefault && &application == &found.all.front();
        QString text = application.name;
        QAction *action = addAction(application.icon, text.replace(u'&', QLatin1String("&&")));
        if (isDefault)
            action->setText(tr("%1 (default)").arg(text));
        if (isDefault && found.all.size() > 1)
            addSeparator();
        action->setToolTip(plainTip(application.program));
        connect(action, &QAction::triggered, this,
                [this, id = application.id, name = application.name] { open(id, name); });
    }
    if (found.all.empty())
        addAction(tr("<None>"))->setEnabled(false);
}

void OpenWithMenu::open(const QString &id, const QString &name)
{
    runInBackground(
        this, "OpenWith", [path = *_path, id](const RunControl &) { return openWithApplication(path, id); },
        [this, file = lastPathComponent(*_path), name](const Expected<void> &opened) {
            if (!opened)
                _status.say(
                    tr("“%1” cannot be opened in %2: %3").arg(file, name, opened.error().description));
        });
}

} // namespace quorvin
