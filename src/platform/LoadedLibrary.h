// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <type_traits>

namespace quorvin {

/// A library of the system that a program loads when it first needs it, and keeps: libraries that bring
/// dozens of others along take longer to load than a window takes to open. Any thread.
class LoadedLibrary {
public:
    /// `name` as the loader knows it, with the number of its interface. What can't be loaded is logged.
    explicit LoadedLibrary(const char *name);

    bool isLoaded() const { return _library != nullptr; }
    /// Null when the library has no such function, or is not there.
    void *entry(const char *name) const;

private:
    void *_library;
};

/// A function of such a library. Where it is missing a call gives nothing of its type: null, 0.
template <typename Function>
class LibraryEntry {
public:
    LibraryEntry(const LoadedLibrary &library, const char *name)
        : _function(reinterpret_cast<Function *>(library.entry(name)))
    {
    }

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const
    {
        using Result = std::invoke_result_t<Function *, Arguments...>;
        return _function ? _function(arguments...) : Result();
    }

private:
    Function *_function;
};

} // namespace quorvin
