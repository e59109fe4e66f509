// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/commands/CommandSet.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/info/InfoView.h"
#include "shell/window/MainView.h"
#include "shell/window/OneWindow.h"
#include "support/Events.h"

#include <QAction>

namespace quorvin::test {

/// A window of samples that has the keyboard.
struct SampleWindow : OneWindow {
    FilelistTable *table = &window->myView().table();

    void SetUp() override
    {
        window->activateWindow();
        ASSERT_TRUE(spinUntil([this] { return window->isActiveWindow(); }));
        show({"movie.mp4", "matroska.mkv", "tone.wav"});
    }
    void show(std::initializer_list<const char *> names) const
    {
        QStringList paths;
        for (const char *name : names)
            paths.append(sample(QLatin1String(name)));
        window->files().processFiles(paths);
        ASSERT_TRUE(
            spinUntil([&] { return !window->files().isWalking() && window->worker().processingIsDone(); }));
    }
    void run(Command command) const { window->commands().run(command); }
    bool canRun(Command command) const { return window->commands().action(command)->isEnabled(); }
    QString selected() const
    {
        QStringList rows;
        for (const int row : window->files().selectedRows())
            rows.append(QString::number(row));
        return rows.join(u' ');
    }
};

} // namespace quorvin::test
