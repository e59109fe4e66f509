// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/window/OpenPanels.h"

#include "platform/NativePath.h"
#include "shell/commands/CommandSet.h"
#include "shell/desktop/OpenDialog.h"
#include "shell/desktop/PlainText.h"
#include "shell/session/LastFolder.h"
#include "shell/session/Session.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kRecentFolderWidth = 320; ///< of a menu's entry, in device-independent pixels

/// The name, and behind it the folder where another entry has the same name.
QString recentText(const QString &path, const QStringList &all, const QFontMetrics &metrics)
{
    const QString name = lastPathComponent(path);
    const auto hasSameName = [&](const QString &other) { return lastPathComponent(other) == name; };
    QString text = name;
    if (std::ranges::count_if(all, hasSameName) > 1)
        text += QStringLiteral(" — ")
            + metrics.elidedText(withoutLastPathComponent(path), Qt::ElideLeft, kRecentFolderWidth);
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace

OpenPanels::OpenPanels(Session &session, QWidget *window)
    : QObject(window), _settings(session.settings), _recentFiles(session.recentFiles), _window(window)
{
}

void OpenPanels::registerAt(CommandSet &commands)
{
    commands.on(Command::openFile, [this] { chooseFiles(tr("Open"), &OpenPanels::chosen); });
    commands.on(Command::addFile, [this] { chooseFiles(tr("Add Files"), &OpenPanels::chosenToAdd); });
    commands.on(Command::openDirectory, [this] { chooseFolder(tr("Open Folder"), &OpenPanels::chosen); });
    commands.on(Command::addFolder, [this] { chooseFolder(tr("Add Folder"), &OpenPanels::chosenToAdd); });
    QMenu *file = commands.menu(CommandMenu::File);
    auto *recent = new QMenu(tr("Open &Recent"), file);
    file->insertMenu(commands.action(Command::addFile), recent);
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(recent); });
}

void OpenPanels::chooseFiles(const QString &title, void (OpenPanels::*done)(const QStringList &))
{
    auto *dialog = new OpenDialog(_window, title);
    startInLastFolder(*dialog, _settings);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::filesSelected, this, done);
    dialog->open();
}

void OpenPanels::chooseFolder(const QString &title, void (OpenPanels::*done)(const QStringList &))
{
    auto *dialog = new QFileDialog(_window, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    startInLastFolder(*dialog, _settings);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::filesSelected, this, done);
    dialog->open();
}

void OpenPanels::fillRecentMenu(QMenu *menu)
{
    menu->clear();
    const QStringList paths = _recentFiles.paths();
    for (const QString &path : paths) {
        QAction *action = menu->addAction(recentText(path, paths, menu->fontMetrics()));
        action->setToolTip(plainTip(path));
        connect(action, &QAction::triggered, this, [this, path] { Q_EMIT chosen({path}); });
    }
    if (menu->isEmpty())
        menu->addAction(tr("No Recent Files"))->setEnabled(false);
    menu->addSeparator();
    connect(menu->addAction(tr("&Clear List")), &QAction::triggered, this, [this] { _recentFiles.clear(); });
    menu->setToolTipsVisible(true);
}

} // namespace quorvin
