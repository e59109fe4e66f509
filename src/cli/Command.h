// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Arguments.h"
#include "filter/RuleMatcher.h"
#include "filter/RuleText.h"
#include "model/Error.h"

#include <QList>

#include <type_traits>

namespace quorvin {
class Settings;
}

namespace quorvin::cli {

class Console;

/// An option, as the parser takes it and the help shows it.
struct Option {
    QStringList names; ///< the last one is the long one
    QString description;
    QString valueName = {}; ///< "" for a switch
    QStringList choices = {}; ///< the only values there are, the first of them if none is given; empty: any
    /// Called if the option is given, and always if it has choices, with the values in their order.
    Expected<void> (*take)(Arguments &arguments, const QStringList &values) = nullptr;
};

/// The `take` of an option that sets a member: a switch, the last value, or all of them.
template <auto Member>
Expected<void> put(Arguments &arguments, const QStringList &values)
{
    auto &member = arguments.*Member;
    using Type = std::remove_reference_t<decltype(member)>;
    if constexpr (std::is_same_v<Type, bool>)
        member = true;
    else if constexpr (std::is_same_v<Type, QStringList>)
        member = values;
    else
        member = values.last();
    return {};
}

/// What a command works with.
struct Context {
    const Arguments &arguments;
    QStringList paths; ///< of the call, absolute, those of --files-from last
    const Settings &settings;
    Console &console;
    const RuleMatcher &filter; ///< of --filter; a file that does not match it is left out
};

/// Exit statuses.
enum Status : int { AllWell = 0, SomethingFailed = 1, WrongCall = 2, Differing = 3 };

enum class Reads { Nothing, Files };

/// A row of the table from which parser, help and runner know the commands.
struct Command {
    QLatin1String name;
    QLatin1String description; ///< what it shows
    QList<Option> (*options)(); ///< those that are not common to all
    Reads (*reads)(const Arguments &arguments); ///< files want paths; nothing refuses them
    Status (*run)(const Context &context);
    Expected<void> (*check)(const Arguments &arguments) = nullptr; ///< whether its options agree
};

} // namespace quorvin::cli
