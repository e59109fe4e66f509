// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/commands/CommandTable.h"

#include "shell/commands/ComparisonCommands.h"
#include "shell/commands/DiagnosticsMenu.h"
#include "shell/commands/EditMenu.h"
#include "shell/commands/FileChanges.h"
#include "shell/commands/FileMenu.h"
#include "shell/commands/HelpMenu.h"
#include "shell/commands/SearchMenu.h"
#include "shell/commands/ViewMenu.h"

#include <algorithm>

namespace quorvin {

namespace {

template <typename... Menus>
consteval auto joined(const Menus &...menus)
{
    std::array<CommandRow, (std::tuple_size_v<Menus> + ...)> table{};
    auto end = table.begin();
    ((end = std::copy(menus.begin(), menus.end(), end)), ...);
    return table;
}

constexpr auto kTable = joined(kFileMenu, kEditMenu, kSearchMenu, kViewMenu, kComparisonCommands,
                               kFileChanges, kDiagnosticsMenu, kHelpMenu);

consteval bool isInOrder()
{
    for (std::size_t i = 0; i < kTable.size(); ++i) {
        if (static_cast<std::size_t>(kTable[i].command) != i)
            return false;
    }
    return true;
}

static_assert(kTable.size() == static_cast<std::size_t>(Command::count), "a command has no row");
static_assert(isInOrder(), "the rows stand in another order than the commands");

} // namespace

std::span<const CommandRow> commandTable()
{
    return kTable;
}

} // namespace quorvin
