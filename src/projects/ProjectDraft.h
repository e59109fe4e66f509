// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/Error.h"
#include "projects/Project.h"

#include <QByteArrayView>

#include <utility>

namespace quorvin {

/// A project that is being read, with what is known of the document so far.
struct ProjectDraft {
    QString folder; ///< from which relative addresses count
    Project project;
    bool hasFormat = false;
    bool hasVersion = false;
    std::size_t entries = 0; ///< of all lists but that of the files
    std::pair<QString, QString> rule; ///< that is being read
};

/// Of the values of a project.
enum class ProjectValue { Object, List, Text, Number, Truth };

/// One member of the document, or the elements of a list. Each operation gives an error, a reason, for a
/// value that is not taken.
struct ProjectMember {
    QByteArrayView place; ///< names from the outermost object on, joined by dots; "[]" is each element
    ProjectValue type;
    Expected<void> (*begin)(ProjectDraft &) = nullptr; ///< an object or list begins
    Expected<void> (*end)(ProjectDraft &) = nullptr;
    Expected<void> (*takeText)(ProjectDraft &, const QByteArray &) = nullptr;
    Expected<void> (*takeNumber)(ProjectDraft &, quint64) = nullptr;
    Expected<void> (*takeTruth)(ProjectDraft &, bool) = nullptr;
};

/// The member of this version that stands there; null when there is none.
const ProjectMember *projectMemberAt(QByteArrayView place);
/// "a text", "a list".
QString nameOfProjectValue(ProjectValue type);

/// The version that this program writes, and the newest that it reads.
inline constexpr quint64 kProjectVersion = 1;
inline constexpr QByteArrayView kProjectFormat("quorvinproj");

/// The reasons that are not those of one value.
Error newerProjectError();
Error foreignProjectError();

} // namespace quorvin
