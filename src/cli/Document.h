// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "cli/Command.h"
#include "intake/FilelistItem.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

class QIODevice;

namespace quorvin::cli {

/// The one document of a call, at the place that its option -o names. One thread.
class Document {
public:
    explicit Document(const Context &context) : _context(context) { }

    /// Whether the document may be written there, as `checkOutputFile` says; else the call is refused.
    bool isAllowed(const QString &extension, const std::vector<FilelistItemPtr> &inputs) const;

    /// Calls `make` with the device that takes the document. A file appears under its name when it is
    /// complete; that it can't be made is known before `make` is called, which is not called then. False,
    /// with an error line, when something could not be written.
    bool write(const std::function<Expected<void>(QIODevice &device)> &make) const;

    /// For `FileRun::finish`: a document on standard output does not end in a line feed of its own.
    bool isOutput() const;

private:
    const Context &_context;
};

/// -f of a command with these formats, of which `usual` is taken without it; `what` has them.
Option formatOption(const QString &what, const QStringList &formats, const QString &usual);
/// -o of a command with one document.
Option outputOption();
/// What lets it replace a file of another kind.
Option forceOption();

} // namespace quorvin::cli
