// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Settings.h"
#include "shell/app/AppController.h"
#include "shell/window/MainWindowController.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace quorvin::test {

/// An application with settings of its own and one window.
struct OneWindow : testing::Test {
    TestFolder folder;
    Settings settings{folder / QStringLiteral("settings.ini")};
    AppController application{settings};
    MainWindowController *window = application.openEmptyWindow();
};

} // namespace quorvin::test
