// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/LoadedLibrary.h"

#include "model/Log.h"

#include <dlfcn.h>

namespace quorvin {

LoadedLibrary::LoadedLibrary(const char *name) : _library(::dlopen(name, RTLD_LAZY))
{
    if (!_library)
        qCInfo(lcQuorvin, "Failed to load %s: %s", name, ::dlerror());
}

void *LoadedLibrary::entry(const char *name) const
{
    return _library ? ::dlsym(_library, name) : nullptr;
}

} // namespace quorvin
