// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Settings.h"

#include <span>

namespace quorvin {

/// The pages of the preferences, in their order.
enum class PreferencePage { General, Advanced };

struct PreferenceChoice {
    const char *label; ///< untranslated, as all texts here
    const char *value; ///< as the setting is written
};

struct PreferenceRow {
    Setting setting;
    const char *label;
    std::span<const PreferenceChoice> choices
        = {}; ///< none: a box to tick, or a number within the setting's ends
    const char *unit = nullptr; ///< behind a number; nullptr: none
    const char *tip = nullptr; ///< what it is good for, where the label does not tell; or nullptr
    /// What stands in the way of a choice, to be told below it; gives nullptr when nothing does.
    const char *(*obstacle)() = nullptr;
};

/// Settings that belong together, under a heading.
struct PreferenceSection {
    PreferencePage page;
    const char *heading;
    std::span<const PreferenceRow> rows;
    bool concernsReading = false; ///< files show what these say only after they are read again
};

/// Every setting that a user can mean, in the order of the window.
std::span<const PreferenceSection> preferenceSections();

} // namespace quorvin
