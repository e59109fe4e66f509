// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/charts/MapMenu.h"

#include "places/PositionText.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/MapProgram.h"
#include "shell/desktop/PlainText.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMessageBox>

#include <algorithm>

namespace quorvin {

namespace {

constexpr std::size_t kMostOfSpot = 20; ///< files that a menu names

/// What a menu does not take for the mark of a key.
QString menuText(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

MapMenu::MapMenu(QWidget *window) : QObject(window), _window(window) { }

QMenu *MapMenu::makeMenu()
{
    auto *menu = new QMenu(_window);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    return menu;
}

void MapMenu::addFiles(QMenu &menu, const QString &text, const std::vector<FilelistItemPtr> &files)
{
    connect(menu.addAction(menuText(text)), &QAction::triggered, this,
            [this, files] { Q_EMIT filesChosen(files); });
}

void MapMenu::openSpot(const std::vector<FilelistItemPtr> &files, const QPoint &where)
{
    QMenu *menu = makeMenu();
    for (std::size_t i = 0; i < std::min(files.size(), kMostOfSpot); ++i)
        addFiles(*menu, QFileInfo(files[i]->filename()).fileName(), {files[i]});
    menu->addSeparator();
    addFiles(*menu, tr("All %1").arg(countOfFiles(static_cast<qint64>(files.size()))), files);
    menu->popup(where);
}

void MapMenu::openPlace(const std::vector<FilelistItemPtr> &files, const Location &location,
                        const QPoint &where)
{
    QMenu *menu = makeMenu();
    if (!files.empty())
        addFiles(*menu, tr("Select %1").arg(countOfFiles(static_cast<qint64>(files.size()))), files);
    QMenu *copy = menu->addMenu(tr("Copy Position"));
    for (const auto notation :
         {PositionNotation::Decimal, PositionNotation::Sexagesimal, PositionNotation::GeoUri}) {
        const QString text = positionText(location, notation);
        connect(copy->addAction(text), &QAction::triggered, this,
                [text] { QGuiApplication::clipboard()->setText(text); });
    }
    QAction *open = menu->addAction(tr("Open in Map Program"));
    open->setEnabled(hasMapProgram());
    connect(open, &QAction::triggered, this, [this, location] {
        if (const auto opened = openInMapProgram(location); !opened)
            plainMessage(_window, tr("Map"), tr("No map program could be opened."),
                         opened.error().description, QMessageBox::Close)
                ->open();
    });
    menu->popup(where);
}

} // namespace quorvin
